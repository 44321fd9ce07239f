kavcalc format -inf
