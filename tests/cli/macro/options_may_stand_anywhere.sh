kavcalc --settings=mine.toml macro --variables xy add f x+y
kavcalc macro list --settings mine.toml
kavcalc macro -- list --settings mine.toml; echo $?
kavcalc macro --steps list; echo $?
