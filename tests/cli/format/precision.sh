kavcalc format --display scientific --precision 0 12345
kavcalc format --display fixed --precision 3 -1.0005 2
kavcalc format --display engineering --precision 3 12345.678 0.05
