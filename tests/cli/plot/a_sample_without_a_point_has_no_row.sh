kavcalc plot 'ln(x)' | sed -n '1p;115,116p' | tr '\t' '|'
