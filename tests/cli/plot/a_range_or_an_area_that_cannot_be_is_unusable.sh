for values in '1 1 0 1' '2 1 0 1' '0 1 5 5' '0 1e999 0 1' '-1e308 1e308 0 1' '0 1 0' '0 a 0 1' '0 1,5 0 1' '0 inf 0 1'; do
  kavcalc plot --range $values; echo $?
done
for values in '5 5' '6 5' '0' '0 1.5' 'a b' '0 99999999999'; do
  kavcalc plot --area $values; echo $?
done
kavcalc plot --range; echo $?
kavcalc --range 0 1 0 1 x; echo $?
kavcalc plot --range 0 1 0 --raw x; echo $?
