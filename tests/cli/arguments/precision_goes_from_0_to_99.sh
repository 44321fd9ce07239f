kavcalc --display fixed --precision 0 2.5+0.1
kavcalc --display fixed --precision 99 0.5 | wc -c
