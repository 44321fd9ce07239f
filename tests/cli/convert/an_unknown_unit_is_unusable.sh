kavcalc convert 7 Mils Kilometers 1; echo $?
kavcalc convert 7 Miles Km 1 2 3; echo $?
kavcalc convert 7 Miles Acres 1; echo $?
kavcalc convert 7 '' Miles 1; echo $?
kavcalc convert 12 Celsius Fahrenheit 100; echo $?
kavcalc convert 7 Miles 5; echo $?
kavcalc convert 7 Miles; echo $?
kavcalc convert 7; echo $?
kavcalc convert 12; echo $?
kavcalc convert 7 Metres Miles 1; echo $?
kavcalc convert 7 mil Miles 1; echo $?
