cp "$FILES/macros.toml" mine.toml
kavcalc macro add --settings mine.toml sq 'x^2'
grep -v '^#' mine.toml
