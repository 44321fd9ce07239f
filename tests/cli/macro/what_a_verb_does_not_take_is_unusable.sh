kavcalc macro list F; echo $?
kavcalc macro add F; echo $?
kavcalc macro add F x y; echo $?
kavcalc macro list
