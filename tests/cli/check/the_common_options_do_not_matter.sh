kavcalc check --base hex --angle rad --raw --display fixed --precision 3 --settings . 'sin(x)'
