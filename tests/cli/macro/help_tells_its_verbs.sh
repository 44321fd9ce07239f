kavcalc macro --help | grep -oE 'macro (list|add|remove) |--variables' | LC_ALL=C sort -u
kavcalc macro add --help | head -1
ls
