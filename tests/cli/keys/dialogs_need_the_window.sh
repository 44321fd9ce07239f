kavcalc keys Cnv; echo $?
kavcalc keys 7 = M/C 'Store MemVar'; echo $?
kavcalc keys M/C 'ReCall MemVar'; echo $?
kavcalc keys M/C Constants; echo $?
kavcalc keys --settings "$FILES/macros.toml" Mac
