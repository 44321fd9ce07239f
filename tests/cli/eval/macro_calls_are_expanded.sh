kavcalc --settings "$FILES/macros.toml"
