kavcalc 0.1+0.2 2/3 1e13 -- '10^13/3'
kavcalc --display fixed 1
