mkdir folder
printf '[2*2]\r\n1\t2\r\n3\r\n' >short
printf '[11*1]\n1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11\n' >eleven
head -c 1048577 /dev/zero | tr '\0' 7 >large
printf '[1*1]\n7\n' >good
kavcalc matrix --m1 missing 1+1; echo $?
kavcalc matrix --m1 good --m2 folder 1+1; echo $?
kavcalc matrix --m3 short 1+1; echo $?
kavcalc matrix --ans=eleven 1+1; echo $?
kavcalc matrix --m1 large 1+1; echo $?
kavcalc matrix --m1 '' 1+1; echo $?
kavcalc matrix --m1 missing --m1 good '[M1]'; echo $?
kavcalc matrix --m1 /dev/zero 1+1; echo $?
kavcalc matrix --m1 $'a\e[31m' 1+1; echo $?
kavcalc matrix --m1 - --m2 - 1+1 <good; echo $?
kavcalc matrix --m1 - <good; echo $?
