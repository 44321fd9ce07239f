kavcalc keys Mac
