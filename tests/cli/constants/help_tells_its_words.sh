kavcalc constants --help | sed -n 3p
