kavcalc memory store 3 3
kavcalc memory clear <&-; echo $?
kavcalc memory list | sed -n 3p
