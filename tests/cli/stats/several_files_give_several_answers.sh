printf '1\t1\n3\t1\n' >a.txt
printf '5\t2\n' >b.txt
mkdir folder
kavcalc stats a.txt missing folder - b.txt < <(printf '7\t4\n') | sed -n '/rows/,/sum_x\t/p;/error/p'
