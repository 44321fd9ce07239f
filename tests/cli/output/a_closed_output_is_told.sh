kavcalc 1+1 >&-
