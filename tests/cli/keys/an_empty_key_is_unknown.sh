kavcalc keys ''
