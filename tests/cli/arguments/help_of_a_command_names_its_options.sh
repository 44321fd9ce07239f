kavcalc check --help | grep -oE -e '--(variables|steps|angle)' | sort -u
kavcalc --help | grep -c -e --steps
kavcalc -h format | grep -o 'kavcalc format \['
