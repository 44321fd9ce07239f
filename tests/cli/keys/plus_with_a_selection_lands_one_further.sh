kavcalc keys '"12345"' '[1:3]' + | cut -f 1 | tr -d '|[]'
