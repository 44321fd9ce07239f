cp "$FILES/macros.toml" mine.toml
kavcalc macro remove --settings mine.toml 'area of'
kavcalc macro list --settings mine.toml
sed -n '/^.Macro/,$p' mine.toml
