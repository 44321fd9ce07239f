cat >mine.toml <<'END'
[MacroInfo]
TotalNumber = 2
[Macro0]
Name = "a"
Type = "TYPE1 : F(X)"
Formula = "x"
[Macro1]
Name = " a "
Type = "TYPE1 : F(X)"
Formula = "x+1"
END
kavcalc macro remove --settings mine.toml ' a '
kavcalc macro list --settings mine.toml
kavcalc macro remove --settings mine.toml ' a '
kavcalc macro list --settings mine.toml
