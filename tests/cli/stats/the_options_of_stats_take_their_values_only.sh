for option in --x=abc --x=1e400 --x=1,5 --y= --model=cubic --model=Linear; do
  kavcalc stats --two "$option" missing; echo $?
done
kavcalc eval --two 1+1; echo $?
