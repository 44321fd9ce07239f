kavcalc keys SIN 3 0 =
