{ printf 0.; head -c 3000000 /dev/zero | tr '\0' 0; echo 1e3000001; } | kavcalc format
