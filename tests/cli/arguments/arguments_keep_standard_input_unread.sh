kavcalc 1+1
cat
