name=$(printf '%1048576s' '' | tr ' ' n)
printf '%s\tx\n%s\tx\n' "$name" "$name" | kavcalc macro add | awk '{ print length($0) < 300 }'
