#!/usr/bin/env bash
# plot_lines.sh [ROUNDS]: how fast kavcalc samples 400 equations from standard input, beside a program
# that has them compiled in.
set -euo pipefail
cd -P -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/.."

scripts/packages.sh run test bench
scripts/build.sh --quiet release kavcalc plot_lines
build/release/bench/plot_lines build/release/src/cli/kavcalc "$@"
