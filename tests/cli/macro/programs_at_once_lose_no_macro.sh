for i in {1..6}; do
  for j in {1..10}; do printf 'f%d.%d\tx+%d\n' "$i" "$j" "$j"; done | kavcalc macro add >"answers$i" &
done
wait
cat answers? | LC_ALL=C sort | uniq -c | wc -l
grep -l error answers?
kavcalc macro list | wc -l
kavcalc macro list | LC_ALL=C sort -u | wc -l
kavcalc macro list | awk -F'\t' '{ split($1, part, /[.(]/); if ($2 != "x+" part[2]) print "mixed up: " $0 }'
grep TotalNumber "$HOME/.config/kav-calculator/settings.toml"
for i in {1..6}; do kavcalc macro list | grep "^f${i}[.]" | cut -d'(' -f1 | kavcalc macro remove >"answers$i" & done
wait
cat answers? | sort | uniq -c | tr -d ' '
kavcalc macro list
