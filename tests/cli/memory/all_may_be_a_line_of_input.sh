kavcalc memory store 7 7
echo all | kavcalc memory clear
kavcalc memory list | sort -u | wc -l
