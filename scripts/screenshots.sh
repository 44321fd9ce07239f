#!/usr/bin/env bash
# screenshots.sh: takes the pictures of the screen in docs/images anew, from the program itself on a
# display of its own: in decimal, in hexadecimal and with Shift on, each at three sizes. Nothing in
# them depends on the user's settings.
set -euo pipefail
cd -P -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/.."

scripts/packages.sh run pictures
scripts/build.sh release kav-calculator
mkdir -p docs/images

home=$(mktemp -d)
trap 'kill -- $(jobs -p) 2>/dev/null; wait; rm -rf -- "$home"' EXIT
export HOME=$home XDG_CONFIG_HOME=$home XDG_RUNTIME_DIR=$home XDG_DATA_DIRS=/usr/share
export QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8
unset WAYLAND_DISPLAY QT_STYLE_OVERRIDE QT_QPA_PLATFORMTHEME XDG_CURRENT_DESKTOP QT_SCALE_FACTOR \
  QT_FONT_DPI

# The server finds a free display itself and says which on this pipe.
coproc server { exec Xvfb -displayfd 1 -noreset -screen 0 1280x1600x24 -dpi 96 -nolisten tcp 2>/dev/null; }
read -r number <&"${server[0]}"
export DISPLAY=:$number

# take NAME WIDTHxHEIGHT BASE TEXT...: one picture, of the base numbered BASE, after these texts were
# typed, or the keys pressed that a text such as press:alt+s names.
take() {
  local name=$1 size=$2 base=$3 window
  shift 3
  mkdir -p "$home/kav-calculator"
  printf '[Config]\n"Window Geometry" = "0 0 %s"\n"Base Type" = %s\n' "${size/x/ }" "$base" \
    >"$home/kav-calculator/settings.toml"
  build/release/src/app/kav-calculator &
  local calculator=$!
  xdotool mousemove 1279 1599
  sleep 1  # by then the window of that name is the screen, and no longer the frame that loads it
  window=$(timeout 30 xdotool search --onlyvisible --sync --name '^Kav Calculator$')
  xdotool windowfocus --sync "$window"
  for key in "$@"; do
    case $key in
      press:*) xdotool key "${key#press:}" ;;
      *) xdotool type "$key" ;;
    esac
    sleep 0.4
  done
  xdotool key End  # after a key the caret is to be seen for half a second
  sleep 0.2
  import -window "$window" +repage -define png:exclude-chunks=date,time \
    "docs/images/$name-$size.png"
  kill "$calculator"
  wait "$calculator" || true
}

for size in 240x320 480x640 1080x1440; do
  take dec "$size" 1 '2*sin(30)+3!='
  take hex "$size" 2 'FF AND 3C='
  take shift "$size" 1 '8^(1/3)=' press:alt+s
done
