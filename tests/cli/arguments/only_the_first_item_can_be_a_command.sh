kavcalc 1 check
kavcalc eval check
kavcalc check check
