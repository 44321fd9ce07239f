kavcalc format abc '' 1,5 0x10 1e 1+1 '1 2' é
