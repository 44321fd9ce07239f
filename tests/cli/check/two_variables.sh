kavcalc check --variables xy 'x+y' y x 'x+y+z'
