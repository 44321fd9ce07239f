#!/usr/bin/env bash
# build.sh [--quiet] PRESET [TARGET...]: configures the preset if that is due, and builds the targets, or
# everything, in build/PRESET. It writes to stderr only: failures and, unless quiet, the progress if
# stderr is a terminal.
set -euo pipefail
cd -P -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/.."

quiet=
[[ $1 != --quiet ]] || { quiet=yes && shift; }
[[ -t 2 ]] || quiet=yes
preset=$1
shift
folder=build/$preset
mkdir -p "$folder"

# Two builds must not work in one folder at the same time.
exec {lock}>"$folder/.lock"
flock "$lock"

# All presets compile the same sources, so they share what was compiled: by paths from here on, which
# are the same in each folder of theirs. What is not there yet is compiled at once, instead of being
# preprocessed first to be looked for. Of headers that are read once for all, their content tells whether
# they are the same, and none uses the time.
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=yes CCACHE_ABSSTDERR=yes CCACHE_DEPEND=yes
export CCACHE_SLOPPINESS=pch_defines,time_macros

configure() {
  cmake --preset "$preset" "$@" </dev/null >/dev/null
}
# A build folder that was moved or copied with the sources still names its old place.
if ! grep -qsxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "$folder/CMakeCache.txt"; then
  configure --fresh
elif [[ ! $folder/build.ninja -nt CMakePresets.json || build/.packages -nt $folder/build.ninja ]]; then
  configure
fi

build() {
  cmake --build "$folder" -- "$@" </dev/null 2>&1
}
if [[ $quiet ]]; then
  # Even a quiet ninja says that there is no work to do.
  said=$(build --quiet "$@") || { printf '%s\n' "$said" >&2 && exit 1; }
else
  build "$@" >&2
fi
