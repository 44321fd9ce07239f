printf '1\t2147483647\n\n2\t1\n' | kavcalc stats -
{ printf '1\t1\n'; head -c 100000 /dev/zero | tr '\0' 7; } | kavcalc stats -
printf '1 1 1\n2 2 -2147483648\n3 3 -1\n4 4 -1\n' | kavcalc stats --two -
printf '4\t1\n5\t3000000000\n' | kavcalc stats -
printf '7\t1e300\r\n' | kavcalc stats -
{ printf '1\t1\n5\t'; head -c 100000 /dev/zero | tr '\0' 0; } | kavcalc stats -
kavcalc stats /dev/zero
yes x | tr -d '\n' | kavcalc stats --two -
