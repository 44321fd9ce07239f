for i in {1..20}; do printf '%d\t%d\n' "$i" "$i"; done | kavcalc memory store >stored
kavcalc memory clear 3 20 3
kavcalc memory list | sed -n '2,4p;20p'
printf '5\n 6 \r\n' | kavcalc memory clear
kavcalc memory list | grep -c '= 0$'
kavcalc memory clear 1 all 2
