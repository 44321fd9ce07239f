touch file
kavcalc macro add --settings file/mine.toml sq 'x^2'; echo $?
printf 'a\tx\n\na\tx\n' | kavcalc macro add --settings file/mine.toml; echo $?
