kavcalc convert user add inch cm 2.54
kavcalc convert user add ' dozen ' ' pieces ' ' 12.0 '
kavcalc convert user add 'Zoll' 'mètre' .0254
kavcalc convert user list
kavcalc convert 15 'inch -> cm' 10 1,000
kavcalc convert 'User Define' 'DOZEN -> pieces' 3
kavcalc convert 'USER define' 'zoll -> mètre' 100
kavcalc convert --list 15
cat "$HOME/.config/kav-calculator/settings.toml" | grep -v '^#'
