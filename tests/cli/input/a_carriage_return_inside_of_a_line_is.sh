kavcalc | od -An -c | tr -d ' \n'; echo
