long=$(printf '%010000d' 7)
kavcalc convert user add "$long" m 2 | wc -c
kavcalc convert user add "$long" m 2 | wc -c
kavcalc convert 15 "$long -> m" 21
kavcalc convert --list 15 | cut -f 2 | wc -c
kavcalc convert user remove "x$long"
kavcalc convert user remove "$long -> m"
