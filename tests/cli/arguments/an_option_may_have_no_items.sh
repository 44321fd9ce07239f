kavcalc --raw
