kavcalc format --raw inf -- -inf nan 1e999 -0 0.1
