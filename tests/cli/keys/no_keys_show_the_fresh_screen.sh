kavcalc keys
kavcalc keys --display fixed --precision 2
kavcalc keys --display scientific
