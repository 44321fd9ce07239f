printf '[1*2]\n1\t\n' >a.txt
kavcalc matrix --m1 a.txt '[M1]' '[M2]+[m1]' '[M3]' '[m ans]' '[M4]' '[M2]/2'
