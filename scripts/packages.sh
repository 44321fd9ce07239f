#!/usr/bin/env bash
# packages.sh SET...: installs the Debian packages of these sets. If all are installed, it fetches and
# asks nothing; otherwise apt-get installs the missing ones, as root or through sudo. It writes to stderr
# only. Status 1: packages are missing and could not be installed.
set -euo pipefail
cd -P -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/.."

declare -A sets=(
  # To build and run the two programs. The screens have room for their texts in any font; these fonts look
  # best. The library for linear algebra is headers only: eigenvalues and factors of matrices.
  [run]="g++ cmake ninja-build ccache qt6-base-dev qt6-svg-dev libtomlplusplus-dev libedit-dev
    libeigen3-dev fonts-dejavu-extra"
  # The window on a desktop that has Wayland and no X server.
  [wayland]="qt6-wayland"
  # The tests, and the benchmarks, so that they keep compiling. The build makes the foreign locales of
  # the tests from the sources in locales. The screens are measured in these fonts.
  [test]="libgtest-dev libgmock-dev libbenchmark-dev locales fonts-dejavu-core fonts-dejavu-extra
    fonts-liberation fonts-noto-core fonts-opendyslexic"
  # The checks beyond the tests. With llvm the reports of the sanitizers name lines instead of addresses;
  # lld links their large programs in a third of the time.
  [check]="clang clang-format clang-tidy libclang-rt-14-dev lld llvm shellcheck"
  # Programs to compare with in benchmarks, and a display for those that open windows.
  [bench]="bc libxcb1-dev xvfb xauth"
  # To take the pictures in docs/images again.
  [pictures]="xvfb xdotool imagemagick"
  # An empty system to try the project on, and a display for its windows.
  [fresh]="debootstrap git procps xvfb xdotool imagemagick"
  # To draw the pictures in packaging/icons again.
  [icons]="librsvg2-bin"
)

wanted=()
for name in "$@"; do
  read -r -a packages -d '' <<<"${sets[$name]}" || true
  wanted+=("${packages[@]}")
done

command -v apt-get >/dev/null || {
  echo "Packages come from apt-get, which this machine does not have; wanted: ${wanted[*]}" >&2
  exit 1
}

# dpkg-query fails if it does not know one of the packages, but it lists the others.
installed=" $(dpkg-query --show --showformat='${Package}:${db:Status-Status} ' "${wanted[@]}" \
  2>/dev/null || true)"
missing=()
for package in "${wanted[@]}"; do
  [[ $installed == *" $package:installed "* ]] || missing+=("$package")
done
((${#missing[@]})) || exit 0

# sudo may ask for the password only at a terminal.
if [[ $(id -u) == 0 ]]; then
  as_root=()
elif command -v sudo >/dev/null &&
  { sudo -n true 2>/dev/null || { [[ -t 2 ]] && sudo true; }; }; then
  as_root=(sudo)
else
  echo "Not root and no sudo: please have these packages installed: ${missing[*]}" >&2
  exit 1
fi

log=$(mktemp)
trap 'rm -f -- "$log"' EXIT
apt() {
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -y -o DPkg::Lock::Timeout=300 "$@" \
    </dev/null >>"$log" 2>&1
}

echo "Installing (first time only): ${missing[*]}" >&2
# The lists of packages may be missing, or so old that they name files which are gone. The first attempt
# fails then; the second has new lists.
apt install --no-install-recommends "${missing[@]}" ||
  { apt update && apt install --no-install-recommends "${missing[@]}"; } || {
  cat -- "$log" >&2
  echo "These packages could not be installed: ${missing[*]}" >&2
  exit 1
}

# Presets that were configured before may have done without these packages.
mkdir -p build && touch build/.packages
