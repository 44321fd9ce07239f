for i in {1..62}; do printf 'a%d\tb\t%d\n' "$i" "$i"; done | kavcalc convert user add | tail -3
kavcalc convert user add '' '' ''
kavcalc convert user list | wc -l
kavcalc convert 15 'a60 -> b' 1
kavcalc convert user remove 'a61 -> b' 'a1 -> b'
kavcalc convert user add a61 b 7
kavcalc convert user list | sed -n '1p;59,$p'
