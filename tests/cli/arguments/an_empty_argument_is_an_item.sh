kavcalc ''
