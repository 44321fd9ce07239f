printf '[2*2]\n1\t2\n3\t4\n' >a.txt
export TMPDIR=$PWD/a.txt
kavcalc matrix --m1 a.txt --ans a.txt '[M1]*[M1]*[M1]' '[M Ans]' '[M1]+[M1]'
TMPDIR=$PWD kavcalc matrix --m1 a.txt '[M1]*[M1]*[M1]'
ls
