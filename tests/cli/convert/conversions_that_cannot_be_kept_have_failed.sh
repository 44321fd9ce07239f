touch file
kavcalc convert user add --settings file/mine.toml a b 2; echo $?
printf 'a\tb\t2\n\na\tb\t2\n' | kavcalc convert user add --settings file/mine.toml | cut -c 1-56
kavcalc convert user list --settings mine.toml
kavcalc convert user add --settings mine.toml a b 2
kavcalc convert user list --settings mine.toml
kavcalc convert --settings mine.toml 15 'a -> b' 2
ls -A "$HOME"
