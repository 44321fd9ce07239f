kavcalc convert 7 'Light years' Picometers 1e300 -1e300 1; echo $?
kavcalc convert --raw 7 'Light years' Picometers 1e300; echo $?
kavcalc convert --base hex 7 'Light years' Picometers 1e300
kavcalc convert 7 Meters Meters 1e999; echo $?
kavcalc convert 7 Picometers 'Light years' 1e-320
