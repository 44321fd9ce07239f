kavcalc convert --list length | sed -n '1p;9p;16p;17p;18p;22p;$p'
kavcalc convert --list 12 | tr '\t' '|'
kavcalc convert 2 --list | cut -f 3 | paste -sd ' '
kavcalc convert --list '08. mass AND weight' | cut -f 2 | paste -sd ';'
