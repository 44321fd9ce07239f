kavcalc --base hex 'FF AND F' 255 'a+1' 'NOT 0'
kavcalc --base bin '1 and 11' 1012
kavcalc --base oct 17+1
