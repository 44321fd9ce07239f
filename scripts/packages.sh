#!/usr/bin/env bash
# packages.sh SET...: sees to it that the Debian packages of these sets are installed. Where they all
# are, nothing is fetched and nothing is asked; otherwise apt-get installs those that are missing, as
# root or through sudo. Everything is said on stderr. Status 1: something is missing and stays so.
set -euo pipefail
cd -P -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/.."

declare -A sets=(
  # To build and run the two programs. Line editing is linked from archives, and so is what it stands
  # on; the fonts are those that look best, for the screens have room for the texts in any.
  [run]="g++ cmake ninja-build ccache qt6-base-dev qt6-svg-dev libtomlplusplus-dev libedit-dev
    libncurses-dev libbsd-dev libmd-dev fonts-dejavu-extra"
  # The window on a desktop that has no X server beside its Wayland one.
  [wayland]="qt6-wayland"
  # The tests and, so that they keep compiling, the benchmarks; locales brings the sources from which
  # the build makes the foreign locales that the tests run in, and the fonts are those that the screens
  # are measured in.
  [test]="libgtest-dev libgmock-dev libbenchmark-dev locales fonts-dejavu-core fonts-dejavu-extra
    fonts-liberation fonts-noto-core fonts-opendyslexic"
  # The checks beyond the tests. llvm makes the sanitizers' reports name lines instead of addresses;
  # lld links what they have made large in a third of the time.
  [check]="clang clang-format clang-tidy libclang-rt-14-dev lld llvm shellcheck"
  # What the benchmarks are measured against, and a display for those that open windows.
  [bench]="bc libxcb1-dev xvfb xauth"
  # To take the pictures of the screen in docs/images anew.
  [pictures]="xvfb xdotool imagemagick"
  # An empty system to try the project on, and a display to see its windows on.
  [fresh]="debootstrap git procps xvfb xdotool imagemagick"
  # To draw packaging/icons anew.
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

# A package that dpkg has never heard of makes dpkg-query fail, but it lists the others all the same.
installed=" $(dpkg-query --show --showformat='${Package}:${db:Status-Status} ' "${wanted[@]}" \
  2>/dev/null || true)"
missing=()
for package in "${wanted[@]}"; do
  [[ $installed == *" $package:installed "* ]] || missing+=("$package")
done
((${#missing[@]})) || exit 0

# At a terminal sudo may ask for the password; elsewhere there is nobody to answer.
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
# The lists of packages may be absent, or so old that they name files which are gone: then the first
# attempt fails, and the second has fresh ones.
apt install --no-install-recommends "${missing[@]}" ||
  { apt update && apt install --no-install-recommends "${missing[@]}"; } || {
  cat -- "$log" >&2
  echo "These packages could not be installed: ${missing[*]}" >&2
  exit 1
}

# What was configured before may have gone without them.
mkdir -p build && touch build/.packages
