kavcalc convert user add; echo $?
kavcalc convert user list
