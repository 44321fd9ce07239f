yes 1+1 | kavcalc | head -n 2
