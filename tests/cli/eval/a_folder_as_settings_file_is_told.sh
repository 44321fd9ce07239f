kavcalc --settings . 'sin(30)'
