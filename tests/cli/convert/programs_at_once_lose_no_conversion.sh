for i in 1 2; do
  for j in {1..20}; do printf 'u%d.%d\tx\t%d\n' "$i" "$j" "$j"; done | kavcalc convert user add >"answers$i" &
done
wait
grep -l error answers?
kavcalc convert user list | wc -l
kavcalc convert user list | LC_ALL=C sort -u | wc -l
kavcalc convert user list | awk -F'\t' '{ split($1, part, /[. ]/); if ($2 != part[2]) print "mixed up: " $0 }'
for i in 1 2; do kavcalc convert user list | grep "^u${i}[.]" | cut -f 1 | kavcalc convert user remove >"answers$i" & done
wait
cat answers? | sort | uniq -c | tr -d ' '
kavcalc convert user list
