{ echo 1; cat /dev/zero; } 2>/dev/null | kavcalc; echo "${PIPESTATUS[1]}"
kavcalc format </dev/zero; echo $?
head -c 34000000 /dev/zero | kavcalc macro remove; echo $?
