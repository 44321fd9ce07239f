kavcalc --base wrong 1
