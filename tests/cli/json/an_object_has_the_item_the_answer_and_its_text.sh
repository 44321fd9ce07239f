kavcalc --json --angle deg 'sin(30)' 1/3 10^15 -- '-1/8'
kavcalc --json --display thousands --precision 2 format 1234567.891
kavcalc --json --raw format nan inf -- -inf
kavcalc --json=off 1+1
