kavcalc constants speed light vacuum
kavcalc constants Avogadro | head -1
