kavcalc keys DEC Hexadecimal '"FF"' =
kavcalc keys 1 0 = DEC Binary
kavcalc keys 8 = DEC Octal OCT Decimal
