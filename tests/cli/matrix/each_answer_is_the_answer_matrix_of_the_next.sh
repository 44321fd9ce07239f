printf '[1*2]\n1\t1,000' >a.txt
kavcalc matrix --m1 a.txt
