kavcalc --settings "$FILES/macros.toml" 1234567.5
