kavcalc macro list --settings "$FILES/macros.toml"
