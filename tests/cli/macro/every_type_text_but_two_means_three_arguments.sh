cat >mine.toml <<'END'
[MacroInfo]
TotalNumber = 4
[Macro0]
Name = "a"
Type = "TYPE2 : F(X,Y)"
Formula = "x+y"
[Macro1]
Name = "b"
Type = "TYPE3 : F(X,Y,Z)"
Formula = "x+y+z"
[Macro2]
Name = "c"
Formula = "x*y*z"
[Macro3]
Name = "d"
Type = "type1 : f(x)"
Formula = "x"
END
kavcalc macro list --settings mine.toml
