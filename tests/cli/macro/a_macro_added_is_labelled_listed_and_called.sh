kavcalc macro add sq 'x^2'
kavcalc macro add --variables xy 'area of' 'x*y'
kavcalc macro add --variables=xyz sum 'x + y + z'
kavcalc macro list
kavcalc 'M:sq(3)' 'M:area of(3,4)' 'M:sum(1,2,4)+1'
