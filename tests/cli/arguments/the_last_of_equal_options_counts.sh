kavcalc --angle deg --angle rad 'sin(pi/2)'
kavcalc --raw --raw 0.1
