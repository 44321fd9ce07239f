kavcalc --base 'dec|hex' 1
