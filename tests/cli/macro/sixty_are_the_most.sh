for i in {1..61}; do printf 'f%d\tx+%d\n' "$i" "$i"; done | kavcalc macro add | tail -2
kavcalc macro add '' ''
kavcalc macro list | wc -l
kavcalc 'M:f60(1)' 'M:f61(1)'
kavcalc macro remove f1
kavcalc macro add f61 x
kavcalc macro list | sed -n '1p;59,$p'
