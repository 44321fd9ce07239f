kavcalc convert user add Cal J 4184
kavcalc convert user add cal J 4.184
kavcalc convert 15 'Cal -> J' 1
kavcalc convert 15 'cal -> J' 1
kavcalc convert 15 'CAL -> J' 1; echo $?
kavcalc convert user remove 'CAL -> J'
kavcalc convert user remove 'Cal -> J'
kavcalc convert 15 'CAL -> J' 1
