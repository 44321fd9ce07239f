kavcalc keys A; echo $?
kavcalc keys --base hex A B
kavcalc keys --base hex SIN
