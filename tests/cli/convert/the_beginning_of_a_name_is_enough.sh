kavcalc convert len mile kilom 1
kavcalc convert TEMP 'celsius -> f' 100
kavcalc convert --list user
kavcalc convert user add inch cm 2.54
kavcalc convert --list user
kavcalc convert us in 10
