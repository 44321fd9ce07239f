first_three() { kavcalc stats "$@" - | head -n 3; }
printf '1.5e+3\t2\r\n' | first_three
printf '1.5E3\t2\r\n' | first_three
printf '5\t2.9\r\n6\t1' | first_three
printf '5\r\n' | first_three
printf '5' | first_three
printf '' | first_three
printf '5\0001\0006\0001\000' | first_three
printf '1\t2\t3\r\n4\t5\r\n' | first_three --two
