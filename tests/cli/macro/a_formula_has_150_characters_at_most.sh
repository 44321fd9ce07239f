blanks=$(printf '%147s' '')
kavcalc macro add most "x$blanks+1"
kavcalc macro add more "x$blanks +1"
kavcalc macro list | tr -d ' '
kavcalc 'M:most(1)'
