kavcalc format inf -- -inf nan INF 1e999
