yes 1/3 | head -n 100000 | kavcalc --raw | { sleep 0.3; uniq -c | tr -s ' '; }
