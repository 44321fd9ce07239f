printf '[2*2]\n2\t1\n1\t0.1\n' >m.txt
printf '2\t3\n4\t1\n' >d.txt
kavcalc --json matrix --m1 m.txt '[M1]' '[M Ans]*2' 1+1
kavcalc --json matrix --m1 m.txt --crlf '[M1]'
kavcalc --json stats d.txt
printf '1 5 1\n' >one.txt
kavcalc --json stats --two --y 3 one.txt | grep -o -e '\["r",[^]]*\]' -e '\["x.",[^]]*\]'
kavcalc --json plot --range 0 229 0 229 'x+100' | grep -o -e '"result":\[\[0,0,129\],\[1,1,128\]' -e '\[229,229,null\]'
kavcalc --json check --steps x x^2
kavcalc --json keys --angle deg SIN 3 0 = CLR 2 =
kavcalc --json convert --list 12 | grep -o '"result":\[\[[^]]*\]'
kavcalc --json convert --list length | grep -o '\["07. Length","Miles",[^]]*\]'
kavcalc --json macro add sq x^2 && kavcalc --json macro list
kavcalc --json convert user add dozen pieces 12 && kavcalc --json convert user list
kavcalc --json memory store 3 2^3+1 && kavcalc --json memory list | grep -o '"result":\[\["Mem01",0\],\["Mem02",0\],\["Mem03",9\]'
kavcalc --json constants speed light vacuum
kavcalc --json constants nothing of this name
kavcalc --json settings export all.toml
