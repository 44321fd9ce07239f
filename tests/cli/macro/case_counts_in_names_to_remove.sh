cp "$FILES/macros.toml" mine.toml
kavcalc macro remove --settings mine.toml f 'AREA OF'
cmp mine.toml "$FILES/macros.toml"
kavcalc macro remove --settings new.toml F
ls -- *.toml
