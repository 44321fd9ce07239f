kavcalc convert 7 miles KILOMETERS 1
kavcalc convert 2 GIGABITS megabits 1
kavcalc convert 7 'light YEARS' 'Light years' 3
kavcalc convert 14 'gallons, DRY (us)' 'Gallons, dry (US)' 1
kavcalc convert 12 'KELVIN -> celsius' 273.15
