cp "$FILES/macros.toml" mine.toml
kavcalc keys --settings mine.toml 1 + 1 = >/dev/null
kavcalc keys 1 + 1 = >/dev/null
cmp mine.toml "$FILES/macros.toml"; ls; find "$HOME" -mindepth 1
