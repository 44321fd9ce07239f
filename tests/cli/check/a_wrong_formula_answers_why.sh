kavcalc check x '(x' 'x+' 'foo(x)' '' 'x y' 1
