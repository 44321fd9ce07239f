kavcalc convert user add a b 2
kavcalc convert user add '' b 2; echo $?
kavcalc convert user add a '  ' 2
kavcalc convert user add 'm->s' b 2
kavcalc convert user add a 'm->s' 2
kavcalc convert user add ' a' 'b ' 3
for rate in 0 0.000 '' abc 0x10 inf nan 1e-400 1e400 2,5 1+1; do kavcalc convert user add c d "$rate"; done
kavcalc convert user list
kavcalc convert user add c d 1e-300
kavcalc convert user add d c -- -5
