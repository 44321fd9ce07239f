kavcalc format --base hex 255 -1 2.9 4294967295 4294967296
kavcalc format --base bin 5 -1
kavcalc format --base oct 8 -1
