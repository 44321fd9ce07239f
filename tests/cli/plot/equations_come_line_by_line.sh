kavcalc plot | awk -F '\t' '$1 == 229 || /^error/ || $0 == ""'
