printf '[2*2]\n2\t1\n1\t1\n' >a.txt
kavcalc matrix --crlf --m1 a.txt 'inverse([M1])' 1+1 '[M2]' | cat -A
kavcalc matrix --crlf=off --m1 a.txt '[M1]' | cat -A
kavcalc matrix --m1 a.txt --crlf '[M1]' >b.txt
kavcalc matrix --m1 b.txt '[M1]' | cmp - a.txt && echo same
kavcalc eval --crlf 1+1; echo $?
