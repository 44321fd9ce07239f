kavcalc macro add sq 'x^2'
add() { kavcalc macro add "$@"; echo $?; }
add '' x
add '   ' x
add 'f(x)' x
add 'f)' x
add 'M:f' x
add sq x
add ' sq ' x
add f ''
add f '  '
add f 5
add f x+y
add --variables xy f x
add --variables xyz f x+y
add f '(x'
add f 'x+'
add f 'foo(x)'
kavcalc macro list
