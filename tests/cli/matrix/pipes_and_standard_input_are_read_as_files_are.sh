two() { printf '[1*1]\n2\n'; }
kavcalc matrix --m1 <(two) --m2 - '[M1]*[M2]' < <(printf '\xef\xbb\xbf[1*1]\r\n1,003\r\n\r\n')
mkfifo pipe
two >pipe &
kavcalc matrix --ans pipe '[M Ans]+1'
two >named
printf '%s\n' '[M1]+1' '[M Ans]*2' | kavcalc matrix --m1 named
