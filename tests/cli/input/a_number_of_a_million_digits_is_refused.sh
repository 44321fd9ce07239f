head -c 1000000 /dev/zero | tr '\0' 1 | kavcalc
