kavcalc --json
