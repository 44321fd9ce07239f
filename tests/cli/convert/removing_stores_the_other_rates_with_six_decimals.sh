printf 'a\tb\t2\nc\td\t0.0000001\ne\tf\t2.54\ng\th\t1e-7\n' | kavcalc convert user add >/dev/null
kavcalc convert user remove 'a -> b'; echo $?
kavcalc convert user list
kavcalc convert 15 'c -> d' 1
kavcalc convert user remove 'c -> d'
kavcalc convert user list
