kavcalc check --variables=xyz 'x+y+z' 'y+z' 'x+z' 'x+y' 1
