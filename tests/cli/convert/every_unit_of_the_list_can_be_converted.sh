kavcalc convert --list | awk -F'\t' '$1 !~ /^12/' >rows
while IFS=$'\t' read -r category unit rate; do
  base=$(awk -F'\t' -v category="$category" '$1 == category && $3 == 1 { print $2; exit }' rows)
  kavcalc convert --raw "$category" "$unit" "$base" 1
done <rows >answers
cut -f 3 rows | kavcalc format --raw | cmp - answers
wc -l <answers
