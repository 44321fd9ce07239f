kavcalc constants LIGHT vacuum SPEED
kavcalc constants 'VACUUM light  speed'
kavcalc constants speed --settings mine.toml light -- vacuum
kavcalc constants 299792458
kavcalc constants speed light vacuum nonsense
cmp <(kavcalc constants) <(kavcalc constants '') && echo all
