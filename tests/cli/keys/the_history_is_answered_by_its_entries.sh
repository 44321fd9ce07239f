kavcalc keys 1 + 1 = CLR PB 1+1
kavcalc keys 1 + 1 = CLR PB '=[D]2'
kavcalc keys 1 + 1 = PB 3
