kavcalc 1+1 '2*sin(30)+3!' 2+3*4
