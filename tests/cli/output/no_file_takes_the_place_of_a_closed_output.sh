cp "$FILES/macros.toml" mine.toml
kavcalc --settings mine.toml 'sin(1)' >&-
cmp mine.toml "$FILES/macros.toml" && echo untouched
