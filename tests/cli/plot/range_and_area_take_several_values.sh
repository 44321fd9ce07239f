ends() { sed -n '1p;230p' | tr '\t' ' '; }
kavcalc plot --range -1 1 -2.5 2.5e0 --area 10 480 'x+x' | ends
kavcalc plot --area -20 -10 --range 0 1,000 0 1000 x | ends
kavcalc plot --range=0 1 0 1 --area=0 9 x | ends
kavcalc plot '--range=0 1 0 1' --area ' 0  9 ' x | ends
kavcalc plot x --range 0 1 -1 2 | ends
kavcalc plot --range 0 1 0 1 --range -3 3 -3 3 x | ends
