kavcalc memory store 3 3
kavcalc memory clear 0 21 All Mem03 '' 3.0 -1 3
kavcalc memory clear 99999999999999999999
