kavcalc convert 7 Feet Inches
kavcalc convert 12 'Celsius -> Fahrenheit' </dev/null; echo $?
printf '100' | kavcalc convert 12 'Celsius -> Fahrenheit'
printf '1\r\n2\r\n' | kavcalc convert 7 Feet Inches
seq 100000 | kavcalc convert 7 Feet Inches | awk '$1 != 12 * NR { print "wrong: " $0 }'
echo 5 | kavcalc convert 7 Feet Inches 1
