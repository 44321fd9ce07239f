kavcalc keys 7 DEC
