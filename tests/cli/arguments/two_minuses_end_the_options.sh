kavcalc --raw -- -pi --raw
