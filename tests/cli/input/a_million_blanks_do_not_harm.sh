{ printf 1; head -c 1000000 /dev/zero | tr '\0' ' '; printf '+1\n2\n'; } | kavcalc
