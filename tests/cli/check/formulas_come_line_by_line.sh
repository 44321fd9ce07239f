kavcalc check
