kavcalc check --variables x x 'x+y' 'x+z'
