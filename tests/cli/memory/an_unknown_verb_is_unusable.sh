kavcalc memory; echo $?
kavcalc memory recall 3; echo $?
kavcalc memory list 3; echo $?
kavcalc memory store 3; echo $?
kavcalc memory store 3 1 2; echo $?
kavcalc memory --variables x list; echo $?
