kavcalc --help --bogus | grep -c '^Usage'
