kavcalc macro; echo $?
kavcalc macro frobnicate; echo $?
kavcalc macro List; echo $?
kavcalc macro --settings new.toml '' add; echo $?
ls
