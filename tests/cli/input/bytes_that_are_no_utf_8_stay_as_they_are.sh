kavcalc | od -An -tx1 | tr -d '\n '
