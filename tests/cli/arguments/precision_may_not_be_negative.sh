kavcalc --precision -1 1
