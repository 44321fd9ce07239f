kavcalc keys SIN
kavcalc keys SIN 4 5
kavcalc keys 1 2 '[1]'
