kavcalc 1 --precision
