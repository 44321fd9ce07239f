kavcalc eval 2^3^2
kavcalc 2^3^2
