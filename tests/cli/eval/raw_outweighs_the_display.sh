kavcalc --raw --display thousands --precision 2 1234567.5
