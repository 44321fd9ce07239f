{
  printf '[MemoryVar]\nVar0 = "not a number"\nVar1 = ""\nVar2 = 5\nVar3 = "1\\n2"\nVar20 = "1"\n'
  printf 'Var19 = "%s"\n' "$(printf '%1048576s' '' | tr ' ' 1)"
} >mine.toml
kavcalc memory list --settings mine.toml | head -5
kavcalc memory list --settings mine.toml | wc -lc
kavcalc memory clear --settings mine.toml 20
kavcalc memory list --settings mine.toml | head -1
