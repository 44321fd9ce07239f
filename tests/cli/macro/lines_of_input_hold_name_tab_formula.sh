kavcalc macro add
