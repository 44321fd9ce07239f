printf '[2*2]\r\n2\t1\r\n1\t1\r\n' >a.txt
kavcalc matrix --m1 a.txt 'inverse([M1])' | cat -A
kavcalc matrix --m1 a.txt 'inverse([M1])' >b.txt
kavcalc matrix --m1 a.txt --m2=b.txt '[M1]*[m2]'
kavcalc matrix --ans b.txt --m3 a.txt '[M3]*[M Ans]'
