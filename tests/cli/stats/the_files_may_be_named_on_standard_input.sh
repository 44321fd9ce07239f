printf '1\t1\n' >a.txt
printf '2\t1\n' >b.txt
printf 'a.txt\r\nmissing\nb.txt' | kavcalc stats | grep -e sum_x$'\t' -e error
