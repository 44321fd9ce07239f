cat >mine.toml <<'END'
[MacroInfo]
TotalNumber = 2
[Macro0]
Name = "broken"
Type = "TYPE1 : F(X)"
Formula = "x+(("
[Macro1]
Name = "fine"
Type = "TYPE1 : F(X)"
Formula = "x+1"
END
kavcalc macro list --settings mine.toml
kavcalc --settings mine.toml 'M:fine(1)'
kavcalc macro add --settings mine.toml broken x
kavcalc macro remove --settings mine.toml broken
kavcalc macro list --settings mine.toml
