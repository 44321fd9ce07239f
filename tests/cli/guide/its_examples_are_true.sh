# All sessions of the guide except the one at the prompt.
awk '/^```/ { inside = !inside; next } inside' "$FILES/../../../docs/command-line.md" |
  sed '/^\$ kavcalc$/,/^>$/d' >guide
while IFS= read -r line; do
  [[ $line != '$ '* ]] || { echo "$line" && eval "${line#'$ '}" </dev/null; }
done <guide >again
[[ -s guide ]] && diff guide again && echo same
