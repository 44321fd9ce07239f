for option in --x=1 --y=1 --model=power; do
  kavcalc stats "$option" missing; echo $?
done
