kavcalc keys
