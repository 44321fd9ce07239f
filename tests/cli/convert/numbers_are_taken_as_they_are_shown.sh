kavcalc convert 7 Meters Meters 1,234 -1,234,567.25 1.5e3 12.346E+003 +5 .5 5. ' 7 '
for display in floating fixed scientific thousands engineering; do
  kavcalc format --display "$display" 1234567.5 | kavcalc convert 7 Kilometers Meters
done
