kavcalc --base hex format 255 --raw
kavcalc format 255 --base=hex 16
