kavcalc --version | grep -cE '^kavcalc [0-9]+(\.[0-9]+)+$'
kavcalc check --version x | wc -l
