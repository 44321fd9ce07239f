kavcalc convert --list | cut -f 1 | uniq -c | sed 's/^ *//'
kavcalc convert user add a b 2
kavcalc convert --list | tail -2
