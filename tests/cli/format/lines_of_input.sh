kavcalc format --display thousands
