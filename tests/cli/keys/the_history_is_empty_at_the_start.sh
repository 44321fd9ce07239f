kavcalc keys --settings "$FILES/macros.toml" PB
