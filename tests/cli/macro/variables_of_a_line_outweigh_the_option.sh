printf 'a\tx+y\nb\tx\tx\nc\tx+y+z\txyz\n' | kavcalc macro add --variables xy
kavcalc macro list
