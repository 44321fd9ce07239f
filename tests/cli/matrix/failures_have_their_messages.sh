printf '[2*2]\n1\t2\n3\t4\n' >a.txt
printf '[1*2]\n5\t6\n' >b.txt
kavcalc matrix --m1 a.txt --m2 b.txt -- '[M1]+[M2]' 'inverse' 'sin([M1])' '[M1]/2' '[M1]^2.5' \
  'determinant(2)' '(([M1])' '[M1],[M2]' 'inverse[M1]' '[M1]*10^400' '-[M1]'
