kavcalc | tr '\0' '@'
