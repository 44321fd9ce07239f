kavcalc format 1e12 1e13 1e-12 1e-13
