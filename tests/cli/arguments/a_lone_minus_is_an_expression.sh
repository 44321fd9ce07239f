kavcalc -
