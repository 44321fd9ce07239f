mkdir mine.toml
printf 'a\tx\nb\tx\n' | kavcalc macro add --settings mine.toml
ls -d -- *.toml
