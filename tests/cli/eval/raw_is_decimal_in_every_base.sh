kavcalc --raw --base hex FF FF/2
kavcalc --raw --base bin 11
