cat >mine.toml <<'END'
[MacroInfo]
TotalNumber = 2
[Macro0]
Name = "a\tb\nc\r"
Type = "TYPE1 : F(X)"
Formula = "x\t+\r\n1\u001B"
[Macro1]
Name = "d"
Type = "TYPE1 : F(X)"
Formula = ""
END
kavcalc macro list --settings mine.toml
