settings=$HOME/.config/kav-calculator/settings.toml
for round in {1..8}; do
  for j in {1..7}; do printf 'f%d.%d\tx+%d\n' "$round" "$j" "$j"; done >lines
  kavcalc macro add <lines >/dev/null & running=$!
  sleep "0.00$((round * 3 % 10))"
  { kill -KILL "$running"; wait "$running"; } 2>/dev/null
  kavcalc macro list >list
  awk -F'\t' '{ split($1, part, /[.(]/); if ($2 != "x+" part[2]) print "torn: " $0 }' list
  [[ ! -e $settings ]] || grep -qx "TotalNumber = $(wc -l <list)" "$settings" || echo "the count is wrong"
done
kavcalc macro add last x
ls "$HOME/.config/kav-calculator"
