for category in 7 07 '07. Length' Length length LENGTH '07. lENGTH'; do
  kavcalc convert "$category" Feet Inches 1
done
kavcalc convert 1 Acres Acres 1
kavcalc convert 14 Liters Milliliters 1
kavcalc convert 'MASS AND WEIGHT' Kilograms Grams 1
kavcalc convert 'bit and bytes' Bytes Bits 1
