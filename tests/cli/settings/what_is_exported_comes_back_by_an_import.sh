kavcalc macro add sq 'x^2'
kavcalc memory store 3 '2^3+1'
kavcalc settings export all.toml
kavcalc macro remove sq
kavcalc macro add other 'x+1'
kavcalc settings import all.toml
kavcalc macro list
kavcalc 'M:sq(4)'
kavcalc memory list | sed -n 3p
# What stood there before is beside it.
grep -c other "$HOME/.config/kav-calculator/settings.toml.before-import"
