cp "$FILES/macros.toml" mine.toml
kavcalc memory store --settings mine.toml 1 'SIN(Pi/2)'
kavcalc memory store --settings mine.toml --angle deg 2 'sin(90)'
kavcalc memory store --settings mine.toml 3 'M:area of(2+2,2)'
kavcalc memory store --settings mine.toml --base hex 4 'FF AND F0'
kavcalc memory store --settings mine.toml --base bin 5 NOT1
