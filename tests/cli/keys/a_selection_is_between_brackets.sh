kavcalc keys '"12345"' '[1:3]'
kavcalc keys '"12345"' '[3:1]'
kavcalc keys '"12345"' '[0:99]'
kavcalc keys '"12345"' '[99999999999999999999]'
