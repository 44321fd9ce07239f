kavcalc convert 15 'a -> b' 1; echo $?
kavcalc convert 'User Define'; echo $?
kavcalc convert --list 15; echo $?
kavcalc convert user list; echo $?
kavcalc convert user add a b 2
kavcalc convert 15; echo $?
kavcalc convert 15 'b -> a' 1; echo $?
