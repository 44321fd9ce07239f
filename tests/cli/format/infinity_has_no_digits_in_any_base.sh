kavcalc format --base hex inf
