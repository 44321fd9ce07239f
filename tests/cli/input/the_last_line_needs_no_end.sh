kavcalc
