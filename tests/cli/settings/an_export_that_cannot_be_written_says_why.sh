mkdir taken
kavcalc settings export taken
kavcalc settings export nowhere/all.toml
kavcalc settings export a b
