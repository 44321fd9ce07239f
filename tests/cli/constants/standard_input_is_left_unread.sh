kavcalc constants 299792458 nonsense
cat
