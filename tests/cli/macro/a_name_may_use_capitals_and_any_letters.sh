kavcalc macro add sq x
kavcalc macro add SQ 'x^2'
kavcalc macro add 'größe Ω' 'x^3'
kavcalc macro add -- -f 'x^4'
kavcalc macro list
kavcalc 'M:SQ(3)' 'M:größe Ω(2)' 'M:-f(2)'
