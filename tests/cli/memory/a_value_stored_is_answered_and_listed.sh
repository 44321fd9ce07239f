kavcalc memory store 3 '2*sin(30)'
kavcalc memory store 20 -2^2
kavcalc memory store --settings mine.toml 01 1/3
kavcalc memory list | sed -n '3p;20p'
kavcalc memory list --settings mine.toml | head -2
grep -v '^#' mine.toml
