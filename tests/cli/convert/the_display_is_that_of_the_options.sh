kavcalc convert --display thousands 7 Miles Meters 1000
kavcalc convert 7 Miles Meters 1000 --display scientific --precision 2
kavcalc convert --display fixed --precision 3 7 Meters Kilometers 1
kavcalc convert --display engineering --precision 1 7 Kilometers Meters 12
kavcalc convert --base hex 7 Feet Inches 20
kavcalc convert --raw 7 Kilometers Meters 0.1 1e300
kavcalc convert --raw --base hex 7 Inches Inches 0.1
