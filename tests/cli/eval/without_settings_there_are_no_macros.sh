kavcalc 'M:F(3)'
