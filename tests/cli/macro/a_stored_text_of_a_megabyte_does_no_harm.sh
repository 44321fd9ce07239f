long=$(printf '%1048576s' '' | tr ' ' x)
{
  printf '[MacroInfo]\nTotalNumber = 1\n[Macro0]\nName = "%s"\n' "$long"
  printf 'Type = "%s"\nFormula = "%s"\n' "$long" "$long"
} >mine.toml
kavcalc macro list --settings mine.toml | wc -lc
printf '%s\tx\n' "$long" | kavcalc macro add --settings mine.toml | wc -l
kavcalc macro add --settings mine.toml sq 'x^2'
printf '%s\n' "$long" | kavcalc macro remove --settings mine.toml
kavcalc macro list --settings mine.toml
