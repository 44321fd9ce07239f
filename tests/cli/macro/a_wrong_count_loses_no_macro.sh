for count in 'TotalNumber = -1' 'TotalNumber = 1' 'TotalNumber = 61' 'TotalNumber = 2147483647' \
  'TotalNumber = 2147483648' 'TotalNumber = "3"' ''; do
  sed "s/^TotalNumber.*/$count/" "$FILES/macros.toml" >mine.toml
  kavcalc macro add --settings mine.toml new x+1
  kavcalc macro remove --settings mine.toml F
  kavcalc macro list --settings mine.toml | tr '\n' ' '
  grep TotalNumber mine.toml
done
