kavcalc --settings new.toml 'sin(30)'
ls
cp "$FILES/macros.toml" mine.toml
kavcalc --settings mine.toml 'M:F(3)'
cmp mine.toml "$FILES/macros.toml" && ls
