kavcalc keys 7 foo 8
