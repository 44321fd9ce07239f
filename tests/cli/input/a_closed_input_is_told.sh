kavcalc <&-
