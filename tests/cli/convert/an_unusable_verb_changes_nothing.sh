kavcalc convert user; echo $?
kavcalc convert user frobnicate; echo $?
kavcalc convert user add a b; echo $?
kavcalc convert user add a b 1 2; echo $?
kavcalc convert user list a; echo $?
ls -A "$HOME"
