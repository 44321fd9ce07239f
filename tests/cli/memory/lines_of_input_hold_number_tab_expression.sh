kavcalc memory store
