kavcalc plot 1/x | sed -n '114,117p'
