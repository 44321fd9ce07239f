kavcalc memory store 1 5
store() { kavcalc memory store "$@"; echo $?; }
store 1 ''
store 1 '1/0'
store 1 '10^300*10^300'
store 1 '1+'
store 1 'M:none(1)'
store 0 1
store 21 1
store all 1
kavcalc memory list | head -1
