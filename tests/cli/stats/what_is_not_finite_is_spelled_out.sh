printf '5\t1\n' | kavcalc stats -
printf '1e400\t1\n-1e400\t1\n' | kavcalc stats -
printf '1 1 1\n1 2 1\n' | kavcalc stats --two --y 2 - | tail -n 4
