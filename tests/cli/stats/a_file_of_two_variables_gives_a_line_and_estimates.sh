printf '1\t2\t1\r\n2\t4\t1\r\n3\t6\t1\r\n' >data.txt
kavcalc stats --two --x 4 --y 5 --x=-1,000 data.txt
kavcalc stats --two data.txt | tail -n 4
