kavcalc keys DEG SIN 9 0 RAD = 
kavcalc keys --angle rad RAD SIN 9 0 =
kavcalc keys --angle rad DEG
