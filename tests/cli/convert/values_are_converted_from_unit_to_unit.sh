kavcalc convert Length Miles Kilometers 1
kavcalc convert 'Bit and Bytes' Kilobytes Bits 1
kavcalc convert 'Bit and Bytes' Exabytes Petabytes 1
kavcalc convert Area 'Square Feet' 'Square Inches' 1
kavcalc convert 'Energy (Work)' 'Kilowatt Hours' Megajoules 10
kavcalc convert Volume 'Gallons, liquid (US)' 'Quarts, liquid (US)' 1
kavcalc convert Length Yards Feet 7
kavcalc convert 'Mass and Weight' Tonnes Kilograms 2.5
kavcalc convert Speed Meters/Second Kilometers/Hour 10 -10 0
