kavcalc keys 7 = M/C 'Memory +' CLR M/C 'Memory Recall' '*' 2 =
kavcalc keys 7 = M/C 'Memory -' M/C 'Memory Clear' CLR M/C 'Memory Recall'
