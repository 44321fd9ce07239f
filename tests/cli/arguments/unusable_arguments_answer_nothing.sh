kavcalc 1+1 --bogus 2+2
