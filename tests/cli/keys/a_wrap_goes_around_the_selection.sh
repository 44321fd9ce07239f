kavcalc keys '"45"' '[0:2]' SIN
kavcalc keys '"45"' '[0:2]' Shift ASIN
