printf '2\t3\r\n4\t1\r\n' >data.txt
kavcalc stats data.txt
