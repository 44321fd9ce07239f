kavcalc --steps 1
