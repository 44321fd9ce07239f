kavcalc macro add '  sq  ' '  x^2 '
kavcalc macro list
kavcalc 'M:sq(3)'
