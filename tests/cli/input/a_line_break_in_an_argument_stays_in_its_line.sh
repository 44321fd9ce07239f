kavcalc $'1+\n1' 2
