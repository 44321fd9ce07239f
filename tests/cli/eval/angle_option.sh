kavcalc --angle rad 'sin(pi/2)' 'sin(90)' 'atan(1)*4'
kavcalc --angle deg 'sin(90)'
