kavcalc --precision 07x 1
