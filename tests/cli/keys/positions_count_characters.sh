kavcalc keys '"éa"' '[1]'
