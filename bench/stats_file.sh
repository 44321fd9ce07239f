#!/usr/bin/env bash
# stats_file.sh [LINES [ROUNDS]]: how fast kavcalc sums up a file of a million rows, beside a bare loop.
set -euo pipefail
cd -P -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/.."

scripts/packages.sh run test bench
scripts/build.sh --quiet release kavcalc stats_file
exec build/release/bench/stats_file build/release/src/cli/kavcalc "$@"
