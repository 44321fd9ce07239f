kavcalc --display wrong 1
