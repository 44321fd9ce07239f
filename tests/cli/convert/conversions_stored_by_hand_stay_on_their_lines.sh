cat >mine.toml <<'end'
[Converter]
UserDefine_TotalNumber = 3
[UserDefine_Convert_0]
ConvType = "a\nb -> c\td"
Rate = "2.5\n cm"
[UserDefine_Convert_1]
ConvType = "no arrow"
Rate = "many"
[UserDefine_Convert_2]
ConvType = " a -> b "
Rate = "1e400"
end
kavcalc convert --settings mine.toml user list
kavcalc convert --settings mine.toml 15 $'a\nb -> c\td' 2
kavcalc convert --settings mine.toml 15 'no arrow' 2
kavcalc convert --settings mine.toml 15 ' a -> b ' 2 0
kavcalc convert --settings mine.toml user remove ' a -> b ' $'a\nb -> c\td' 'no arrow'
kavcalc convert --settings mine.toml user list
