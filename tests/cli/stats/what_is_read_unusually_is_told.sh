of() { printf "$1" | kavcalc stats "${@:2}" - | head -n 2; }
of '1\n2\n3\n'
of 'value,count\n10,2\n20,3\n'
of '\xef\xbb\xbf1\t2\n3\t0\n1,5\t2\n'
of '1\t2\t3\r\n4\t5\r\n' --two
printf 'x\n1\t1\n' >named
kavcalc stats named - <named | grep total
{ yes $'1\t1' | head -n 100000; echo 7; } | kavcalc stats - | head -n 2
kavcalc stats named >/dev/null 2>/dev/null; echo $?
