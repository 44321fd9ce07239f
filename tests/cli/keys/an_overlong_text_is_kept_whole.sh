{ printf '"'; head -c 3000000 /dev/zero | tr '\0' 1; printf '"\n'; } | kavcalc keys | wc -c
