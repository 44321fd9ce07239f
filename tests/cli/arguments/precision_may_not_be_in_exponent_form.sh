kavcalc --precision 1e1 1
