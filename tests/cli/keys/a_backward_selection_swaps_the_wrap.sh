kavcalc keys '"45"' '[2:0]' '*'
kavcalc keys '"45"' '[0:2]' '*'
