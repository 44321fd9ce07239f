kavcalc --help >/dev/full
