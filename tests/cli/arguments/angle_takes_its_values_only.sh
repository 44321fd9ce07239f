kavcalc --angle wrong 1
