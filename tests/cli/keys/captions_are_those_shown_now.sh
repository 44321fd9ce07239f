kavcalc keys Shift XthR
kavcalc keys Shift SQRT; echo $?
kavcalc keys Shift Shift SQRT
kavcalc keys XthR
