kavcalc keys 1 2 BS
kavcalc keys 1 2 '[0]' DEL
kavcalc keys 1 2 '[0]' BS
kavcalc keys 1 2 CLR
