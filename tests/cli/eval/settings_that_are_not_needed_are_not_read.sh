kavcalc --settings . 1+1
kavcalc --settings . --angle rad 'sin(0)'
