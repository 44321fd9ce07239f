kavcalc stats <(printf '2\t3\n') | head -n 3
mkfifo pipe
printf '4\t5\n' >pipe &
kavcalc stats pipe | head -n 3
wait
