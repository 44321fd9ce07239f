#!/usr/bin/env bash
# run_case.sh KAVCALC CASE.sh LOCALE...: runs the commands in CASE.sh with KAVCALC as "kavcalc" in each
# locale, and compares the outcome with the files beside it. Standard output has to be CASE.out. Each
# line of standard error has to contain its line of CASE.err; without that file it has to be empty. The
# exit status has to be the one in CASE.status, or 0 without that file. Standard input is CASE.in, or
# empty. The commands run with a new, empty home folder, in a new, empty folder. $FILES is the folder of
# files that cases share.
set -euo pipefail

kavcalc=$(readlink -f -- "$1")
case=$(readlink -f -- "${2%.sh}.sh")
case=${case%.sh}
umask 022
here=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
locales=("${@:3}")
work=$(mktemp -d)
trap 'rm -rf -- "$work"' EXIT

complain() {
  printf '%s in %s: %s\n' "${case##*/cli/}" "$locale" "$1" >&2
  exit 1
}

same_lines() {
  local expected got
  while IFS= read -r -u 3 expected; do
    IFS= read -r -u 4 got && [[ $got == *"$expected"* ]] || return 1
  done
  ! IFS= read -r -u 4 got
} 3<"$1" 4<"$2"

run_in() {
  local room=$work/$1
  mkdir -p "$room/home" "$room/here" "$room/bin"
  ln -s "$kavcalc" "$room/bin/kavcalc"
  local input=/dev/null
  [[ ! -e $case.in ]] || input=$case.in
  (cd "$room/here" && exec env -i "PATH=$room/bin:/usr/bin:/bin" "HOME=$room/home" "LC_ALL=$1" \
    "LOCPATH=${LOCPATH-}" "FILES=$here/files" bash "$case.sh") \
    <"$input" >"$room/out" 2>"$room/err" && status=0 || status=$?
}

for locale in "${locales[@]:?no locale to run in}"; do
  run_in "$locale"
  diff -u --text "$case.out" "$work/$locale/out" >&2 || complain "another answer"
  expected=/dev/null
  [[ ! -e $case.err ]] || expected=$case.err
  same_lines "$expected" "$work/$locale/err" ||
    complain "on standard error: $(cat -- "$work/$locale/err")"
  [[ $status == "$(cat -- "$case.status" 2>/dev/null || echo 0)" ]] || complain "status $status"
done
