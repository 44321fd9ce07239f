kavcalc check --variables yz x
