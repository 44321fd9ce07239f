kavcalc keys '"1+"' 2 =
kavcalc keys '"12345"' '[1:3]' '"x"'
kavcalc keys '""'
kavcalc keys '"a"b"'
