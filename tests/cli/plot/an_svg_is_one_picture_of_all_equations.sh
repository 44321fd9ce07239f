kavcalc plot --svg --area 0 99 'x<' | cut -d: -f1
kavcalc plot --svg --area 0 99 x 'x^2' >picture
head -n 3 picture
grep -c '<polyline.*stroke="#ff0000"' picture
grep -c '<polyline.*stroke="#00ff00"' picture
kavcalc plot --svg 1 2 3 4 2>&1 | head -n 1
