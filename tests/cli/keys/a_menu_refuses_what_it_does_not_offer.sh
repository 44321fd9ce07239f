kavcalc keys DEC Ternary; echo $?
kavcalc keys DEC 7; echo $?
kavcalc keys M/C ''
