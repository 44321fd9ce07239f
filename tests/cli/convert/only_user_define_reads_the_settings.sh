kavcalc convert --settings . 7 Feet Inches 1; echo $?
kavcalc convert --settings . --list 7 | wc -l
kavcalc convert --settings . 15 'a -> b' 1; echo $?
