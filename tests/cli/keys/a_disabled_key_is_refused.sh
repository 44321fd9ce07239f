kavcalc keys PB; echo $?
kavcalc keys DEC Binary 2; echo $?
kavcalc keys --base hex Shift
