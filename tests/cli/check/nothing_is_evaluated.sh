kavcalc check 'x/0' 'sqrt(0*x)' 'x*1e400'
