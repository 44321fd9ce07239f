kavcalc plot 'foo(x)' '' 'x+y' 5 '(x'
