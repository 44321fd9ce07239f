kavcalc check --steps x+1 '(x' 'x*2' | sed -E 's/^  [^ ].*/  step/'
