kavcalc format 1 -1 +1 .5 5. 1e3 1E-3 ' 2 ' 0 007
