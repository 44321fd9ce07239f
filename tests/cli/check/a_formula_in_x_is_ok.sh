kavcalc check 'x^2+3*x-5' 'SIN(X)'
