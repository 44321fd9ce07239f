echo '[Macro0' >mine.toml
printf 'a\tx\nb\tx\n' | kavcalc macro add --settings mine.toml; echo $?
kavcalc macro list --settings mine.toml
cat mine.toml.damaged
