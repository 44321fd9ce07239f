kavcalc keys '"("' = M/C 'Memory +'
