kavcalc -pi
