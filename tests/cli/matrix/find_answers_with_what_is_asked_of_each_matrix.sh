printf '[2*2]\n1\t2\n-4\t4\n' >a
printf '[2*3]\n1\t2\t3\n4\t5\t6\n' >b
printf '[2*2]\n0\t-2\n2\t0\n' >c
for name in rank trace norm1 norminf lu-l lu-u lu-p qr-r; do
  kavcalc matrix --find $name --m1 a '[M1]' | tr -d '\r'
done
kavcalc matrix --find rank --m1 b '[M1]' '[M Ans]*transpose([M Ans])' 'transpose([M1])'
kavcalc matrix --find trace --m1 a --m2 b '[M2]' '[M1]*2' 1+1 '[M Ans]' '[M3]'; echo $?
kavcalc matrix --find=eigenvalues --m1 c '[M1]' '[M1]^2' | tr -d '\r'
kavcalc matrix --find norm2 --raw --m1 c '[M1]'
kavcalc matrix --find Rank --m1 a '[M1]'; echo $?
kavcalc matrix --m1 a 'rank([M1])'; echo $?
