kavcalc --precision x 1
