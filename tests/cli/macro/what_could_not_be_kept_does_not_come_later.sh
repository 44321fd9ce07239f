cp "$FILES/macros.toml" mine.toml
exec {lock}<.
flock "$lock"
coproc kavcalc macro add --settings mine.toml
ask() {
  printf '%s\tx\n' "$1" >&"${COPROC[1]}"
  IFS= read -r -t 20 answer <&"${COPROC[0]}" && echo "${answer%%;*}"
}
ask first
ask second
flock -u "$lock"
ask third
kavcalc macro list --settings mine.toml
