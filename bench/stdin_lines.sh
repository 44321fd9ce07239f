#!/usr/bin/env bash
# stdin_lines.sh [LINES [ROUNDS]]: how fast kavcalc answers a million short expressions from standard
# input, beside bc -l; and, if valgrind is installed, how many instructions it takes for one.
set -euo pipefail
cd -P -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/.."

scripts/packages.sh run test bench
scripts/build.sh --quiet release kavcalc stdin_lines
kavcalc=build/release/src/cli/kavcalc
lines=build/release/bench/stdin_lines

"$lines" "$kavcalc" "$@"

command -v valgrind >/dev/null || exit 0
instructions() {
  "$lines" --write kavcalc "$1" |
    valgrind --tool=callgrind --callgrind-out-file=/dev/null "$kavcalc" "${@:2}" 2>&1 >/dev/null |
    sed -n 's/.*Collected : //p'
}
for options in "--angle rad --raw" "--angle rad"; do
  read -r -a words <<<"$options"
  echo "instructions a line, kavcalc $options:" \
    $((($(instructions 20000 "${words[@]}") - $(instructions 0 "${words[@]}")) / 20000))
done
