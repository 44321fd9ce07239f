kavcalc plot --table 0 0.4 0.1 'x*10' 'sqrt(10*x-1)' | tr '\t' '|'
kavcalc plot --raw --table 0.3 0.1 -0.1 x
kavcalc plot --table 0 1 -1 x 2>&1 | head -n 1
kavcalc plot --table 0 1 1 --svg x 2>&1 | head -n 1
