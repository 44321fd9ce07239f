kavcalc 1; echo $?
kavcalc 1 '('; echo $?
kavcalc '(' 1; echo $?
