{ head -c 10000 /dev/zero | tr '\0' '('; printf 1; head -c 10000 /dev/zero | tr '\0' ')'; } | kavcalc
