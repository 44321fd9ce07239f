kavcalc '(' 2>&-
kavcalc --bogus 2>&-
