for name in a b c d e; do kavcalc convert user add "$name" x 1; done >/dev/null
kavcalc convert user remove 'b -> x' 'b -> x' b ' d -> x '; echo $?
printf 'a -> x\n\nA -> x\r\ne -> x\r\n' | kavcalc convert user remove; echo $?
kavcalc convert user remove </dev/null; echo $?
kavcalc convert user list
