touch file
kavcalc memory store --settings file/mine.toml 3 1; echo $?
kavcalc memory clear --settings file/mine.toml 3 all; echo $?
mkdir mine.toml
printf '1\t1\n2\t1\n' | kavcalc memory store --settings mine.toml; echo $?
