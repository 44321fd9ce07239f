kavcalc memory list
kavcalc memory list --settings new.toml | wc -l
find . "$HOME" -mindepth 1
