kavcalc 'sin(90)' 'acos(0)'
