{ printf 1; head -c 9000000 /dev/zero | tr '\0' ' '; printf '+1\n2\n'; } | kavcalc
