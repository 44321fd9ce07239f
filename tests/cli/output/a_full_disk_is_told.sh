kavcalc 1+1 >/dev/full
