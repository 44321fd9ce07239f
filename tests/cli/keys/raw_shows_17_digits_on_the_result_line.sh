kavcalc keys --raw 1 / 3 =
kavcalc keys --raw --base hex '"FF/2"' =
kavcalc keys --raw 1 / 0 =
kavcalc keys --raw
