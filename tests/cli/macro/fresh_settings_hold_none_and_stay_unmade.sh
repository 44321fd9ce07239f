kavcalc macro list
kavcalc macro list --settings new.toml
find . "$HOME" -mindepth 1
