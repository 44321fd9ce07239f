cp "$FILES/macros.toml" mine.toml
kavcalc macro remove --settings mine.toml wave none wave ' F '; echo $?
printf 'area of\narea of\n\n' | kavcalc macro remove --settings mine.toml; echo $?
kavcalc macro list --settings mine.toml
kavcalc macro add --settings mine.toml again x
kavcalc macro list --settings mine.toml
