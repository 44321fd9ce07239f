kavcalc -- eval
