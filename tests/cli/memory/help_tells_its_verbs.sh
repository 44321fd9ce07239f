kavcalc memory --help | grep -oE 'memory (list|store|clear) ' | LC_ALL=C sort -u
kavcalc memory clear --help | sed -n 3p
