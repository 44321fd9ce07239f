kavcalc --base Dec 1
