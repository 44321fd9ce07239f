for category in 0 16 -1 Lengths 7. '7. Length' ''; do
  kavcalc convert "$category" Miles Kilometers 1; echo $?
done
kavcalc convert; echo $?
kavcalc convert --list Lengths; echo $?
kavcalc convert --list 7 8; echo $?
kavcalc convert --list users; echo $?
