kavcalc convert 7 Miles Kilometers abc '' 1 1,2 12,34,567 0,125 1e 0x10 inf nan 1+1 '1 2'; echo $?
kavcalc convert 7 Miles Kilometers -- -inf; echo $?
printf '%0100dx\n' 0 | kavcalc convert 7 Miles Kilometers
