{
  printf '[MemoryVar]\nVar0 = "7"\n'
  printf '%4194304s\n' '' | tr ' ' '#'
} >mine.toml
cp mine.toml before.toml
kavcalc memory list --settings mine.toml | head -1
cmp mine.toml before.toml
kavcalc memory store --settings mine.toml 2 5
cmp mine.toml.damaged before.toml
kavcalc memory list --settings mine.toml | head -2
