kavcalc keys sin
