kavcalc --display fixed --precision 2 1/3
kavcalc --display=fixed --precision=2 1/3
