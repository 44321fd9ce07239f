kavcalc --angle= 1
