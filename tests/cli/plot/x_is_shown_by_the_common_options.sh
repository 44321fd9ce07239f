second() { sed -n 2p; }
kavcalc plot x | second
kavcalc plot --raw x | second
kavcalc plot --display fixed --precision 2 x | second
kavcalc plot --display scientific --precision 3 x | second
kavcalc plot --range 0 229000 0 229000 --display thousands x | tail -n 1
kavcalc plot --range 0 229 0 229 --base hex x | tail -n 1
