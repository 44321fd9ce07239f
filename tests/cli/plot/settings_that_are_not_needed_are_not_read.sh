kavcalc plot --settings . 'x^2' | wc -l
kavcalc plot --settings . --angle rad 'sin(x)' | wc -l
