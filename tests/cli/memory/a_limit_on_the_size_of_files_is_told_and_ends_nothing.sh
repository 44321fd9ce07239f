store() { kavcalc memory store --settings mine.toml "$@"; }
store 1 5
(ulimit -f 0 && store 1 6) | cat
echo "${PIPESTATUS[0]}"
kavcalc memory list --settings mine.toml | head -1
ls
