cp "$FILES/macros.toml" mine.toml
for change in 'add sq x^2' 'remove F wave'; do
  (trap "" XFSZ && ulimit -f 0 && exec kavcalc macro --settings mine.toml $change)
done | cut -d';' -f1
cmp mine.toml "$FILES/macros.toml" && ls
