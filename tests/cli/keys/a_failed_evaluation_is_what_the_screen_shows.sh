kavcalc keys 1 / 0 =
