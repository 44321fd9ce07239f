kavcalc check --bogus x; echo $?
kavcalc format --bogus 1; echo $?
kavcalc keys --bogus 1
