kavcalc 'SIN(30)' 'Pi' '5C2' '1E3' 'INT(2.5)'
