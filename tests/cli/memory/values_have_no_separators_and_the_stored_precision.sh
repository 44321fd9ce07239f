store() { kavcalc memory store --settings mine.toml "$@"; }
printf '[Config]\n"Display Type" = 3\nPrecision = 3\n' >mine.toml
store 1 1234567.5
store 2 2^100
store 3 -- '-1/8'
store --display thousands --precision 1 --raw 4 10000/3
kavcalc memory store --precision 2 5 2^100
