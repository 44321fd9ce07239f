kavcalc convert Temperature 'Celsius -> Fahrenheit' 100 -40 0
kavcalc convert 12 'Celsius -> Kelvin' 0
kavcalc convert 12. 'Celsius -> Kelvin' 0 2>/dev/null; echo $?
kavcalc convert '12. Temperature' 'Fahrenheit -> Celsius' 212 -40
kavcalc convert 12 'Fahrenheit -> Kelvin' -40
kavcalc convert 12 'Kelvin -> Celsius' 273.15
kavcalc convert 12 'Kelvin -> Fahrenheit' 273.15
