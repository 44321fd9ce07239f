kavcalc --precision 100 1
