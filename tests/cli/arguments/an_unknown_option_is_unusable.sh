kavcalc 1 --bogus
