kavcalc keys 1 + 1 = 2 = | wc -l
