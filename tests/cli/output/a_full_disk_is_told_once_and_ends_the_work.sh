yes 1+1 | kavcalc >/dev/full
