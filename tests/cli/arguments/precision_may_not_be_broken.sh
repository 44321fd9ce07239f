kavcalc --precision 1.5 1
