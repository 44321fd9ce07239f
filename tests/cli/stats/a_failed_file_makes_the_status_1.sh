kavcalc stats missing
