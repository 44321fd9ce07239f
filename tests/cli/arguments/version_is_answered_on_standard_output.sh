# The commit is known where git knows it, or whoever built it said it.
kavcalc --version | LC_ALL=C grep -cE '^kavcalc [0-9]+(\.[0-9]+)+ \((commit [^,]+, )?[A-Za-z]+, [A-Za-z]+ [0-9.]+\)$'
kavcalc check --version x | wc -l
