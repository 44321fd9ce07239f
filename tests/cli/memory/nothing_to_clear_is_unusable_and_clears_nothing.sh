kavcalc memory store 3 3
kavcalc memory clear </dev/null; echo $?
kavcalc memory list | grep -v '= 0$'
