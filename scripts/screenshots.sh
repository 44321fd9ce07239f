#!/usr/bin/env bash
# screenshots.sh: takes the pictures in docs/images again, of the program on a display of its own: the
# scientific screen in decimal, in hexadecimal and with Shift on, its dialogs, and the other screens,
# each at three sizes, and some of them dark. Nothing in them depends on the user's settings.
# screenshots.sh FOLDER/: takes pictures to be looked at into FOLDER, in light, dark and strong colours
# and in upright and wide windows: the same and also menus, message boxes and the rest. $sizes,
# $schemes and $only choose among them.
set -euo pipefail
cd -P -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/.."

scripts/packages.sh run pictures
scripts/build.sh release kav-calculator
folder=${1:-docs/images/}
mkdir -p -- "$folder"

home=$(mktemp -d)
trap 'kill -- $(jobs -p) 2>/dev/null; wait; rm -rf -- "$home"' EXIT
export HOME=$home XDG_CONFIG_HOME=$home XDG_RUNTIME_DIR=$home XDG_DATA_DIRS=/usr/share
export QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8
unset WAYLAND_DISPLAY QT_STYLE_OVERRIDE QT_QPA_PLATFORMTHEME XDG_CURRENT_DESKTOP QT_SCALE_FACTOR \
  QT_FONT_DPI

# The server chooses a free display, and writes its number to this pipe.
coproc server { exec Xvfb -displayfd 1 -noreset -screen 0 1280x1600x24 -dpi 96 -nolisten tcp 2>/dev/null; }
read -r number <&"${server[0]}"
export DISPLAY=:$number

# The entries that the dialogs show.
stored='
[MacroInfo]
TotalNumber = 3
[Macro0]
Name = "sq"
Type = "TYPE1 : F(X)"
Formula = "x^2"
[Macro1]
Name = "hyp"
Type = "TYPE2 : F(X,Y)"
Formula = "sqrt(x^2+y^2)"
[Macro2]
Name = "box"
Type = "TYPE3 : F(X,Y,Z)"
Formula = "x*y*z"
[Converter]
UserDefine_TotalNumber = 2
[UserDefine_Convert_0]
ConvType = "inch -> cm"
Rate = "2.54"
[UserDefine_Convert_1]
ConvType = "knot -> km/h"
Rate = "1.852"
[Convert]
ClassPos = 6
InputTypePos = 18
OutputTypePos = 14
[Grapher]
"Grapher FunTotalNumber" = 3
Fun0 = "8*sin(60*x)"
Fun1 = "1/x"
Fun2 = "x^2-5"
[MemoryVar]
Var0 = "299792.458"
Var3 = "-2.5e-12"
'

# Chooses the window with the title "$1" for the keys and the picture.
focus() {
  window=$(timeout 30 xdotool search --onlyvisible --sync --name "^$1\$")
  xdotool windowfocus --sync "$window"
}

# take NAME WIDTHxHEIGHT BASE DEED...: takes one picture, in the base numbered BASE, after the deeds. A
# deed is a text to type, keys to press as in press:alt+s, a key to hold as in down:ctrl, a place to rest
# the mouse or hold its button at as in hover:9 9 and hold:9 9, or a dialog to choose as in focus:Constants.
# $config may have further settings of the first section, $colours the number of a colour scheme, $suffix
# what the name of the picture ends with, and $only a pattern of the names of those to take. After
# focus:screen the picture is of the display, with all windows that are open.
take() {
  local name=$1 size=$2 base=$3 window area
  shift 3
  [[ $name =~ ^(${only-.*})$ ]] || return 0
  mkdir -p "$home/kav-calculator"
  printf '[Config]\n"Window Geometry" = "0 0 %s"\n"Colour Scheme" = %s\n"Base Type" = %s\n%s\n%s' \
    "${size/x/ }" "${colours-0}" "$base" "${config-}" "$stored" >"$home/kav-calculator/settings.toml"
  build/release/src/app/kav-calculator &
  local calculator=$!
  xdotool mousemove 1279 1599
  sleep 1  # until then the window of that name may be the frame that loads the screen
  focus 'Kav Calculator'
  for deed in "$@"; do
    case $deed in
      press:*) xdotool key "${deed#press:}" ;;
      focus:screen) window=root ;;
      hover:*)
        at=${deed#hover:}
        xdotool mousemove "${at% *}" "${at#* }" sleep 0.2 mousemove_relative 2 2 sleep 1
        ;;
      hold:*)
        at=${deed#hold:}
        xdotool mousemove "${at% *}" "${at#* }" mousedown 1
        ;;
      down:*) xdotool keydown "${deed#down:}" sleep 0.6 ;;
      focus:*) focus "${deed#focus:}" ;;
      *) xdotool type "$deed" ;;
    esac
    sleep 0.4
  done
  [[ $* == *focus:* ]] || xdotool key End  # after a key the caret shows for half a second
  sleep 0.2
  # Menus open below a window at the top of the display.
  [ "$window" != root ] || area=${size%x*}x$((${size#*x} * 3 / 2))
  import -window "$window" -crop "${area:-$size}+0+0" +repage -define png:exclude-chunks=date,time \
    "$folder$name-$size${suffix-}.png"
  xdotool keyup ctrl mouseup 1
  kill "$calculator"
  wait "$calculator" || true
}

# The keys for each row of data: its values, and Enter after the last one.
rows_of_data() {
  local row
  for row in "$@"; do
    printf '%s\0press:Return\0' "${row/ /$'\t'}"
  done
}

ten_by_ten=
for row in {1..10}; do
  for column in {1..10}; do ten_by_ten+="$((row * column))"$'\t'; done
done

# The pictures of the guides at one size.
take_views() {
  local size=$1 values pairs
  take dec "$size" 1 '2*sin(30)+3!='
  take hex "$size" 2 'FF AND 3C='
  take shift "$size" 1 '8^(1/3)=' press:alt+s
  take macro-editor "$size" 1 press:alt+f press:m 'focus:Edit Macro' press:Down press:Return
  take macro-list "$size" 1 press:alt+a 'focus:Macro List' press:Down
  take display-settings "$size" 1 press:alt+f press:c 'focus:Display Settings'
  take converter "$size" 1 press:alt+n 'focus:Unit Converter' 26.2188
  take units-editor "$size" 1 press:alt+f press:u 'focus:Edit Unit Convert' press:Return
  take memory "$size" 1 press:alt+c press:Up press:Up press:Up press:Return 'focus:Memory Variable' \
    press:Down
  take constants "$size" 1 press:alt+c press:Up press:Return focus:Constants mass press:Down
  config='"Mode" = 5' take matrix "$size" 1 press:Tab press:Tab press:Tab $'2\t-1\t0\t-1\t2\t-1\t0\t-1\t2\t' \
    'inverse([M1])='
  config=$'"Mode" = 5\n"Matrix Default Row" = 10\n"Matrix Default Col" = 10\n"Matrix Colum Width" = 40' \
    take matrix-10x10 "$size" 1 press:Tab press:Tab press:Tab "$ten_by_ten"
  mapfile -d '' values < <(rows_of_data 9.8 10.1 9.9 10.4 10)
  config='"Mode" = 3' take one-variable "$size" 1 "${values[@]}"
  mapfile -d '' pairs < <(rows_of_data '1 2.1' '2 3.9' '3 6.2' '4 7.8' '5 10.1')
  config='"Mode" = 4' take two-variable "$size" 1 "${pairs[@]}"
  config='"Mode" = 4' take regression "$size" 1 "${pairs[@]}" press:alt+p focus:Graph
  config='"Mode" = 2' take plotter "$size" 1 'sqrt(x)'
  config='"Mode" = 2' take graph "$size" 1 press:ctrl+Return focus:Graph
}

# What opens over the screens, and the dialogs that the guides do not show, at one size.
take_the_rest() {
  local size=$1 values key
  key="$((${size#*x} * 6 / 100)) $((${size#*x} * 54 / 100))"
  take file-menu "$size" 1 press:alt+f press:Down focus:screen
  take edit-menu "$size" 1 '1+2' press:alt+e press:Down focus:screen
  take mode-menu "$size" 1 press:alt+m press:Down focus:screen
  take bases "$size" 1 press:alt+b press:Down focus:screen
  take memory-menu "$size" 1 press:alt+c press:Down focus:screen
  take field-menu "$size" 1 '1+2' press:Menu press:Down press:Down focus:screen
  take tooltip "$size" 1 '1/3=' press:Up "hover:$((${size%x*} / 2)) $((${size#*x} * 33 / 100))" focus:screen
  take about "$size" 1 press:alt+f press:a focus:screen
  take stop "$size" 1 press:alt+c press:Up press:Return focus:Constants zzzz press:Return focus:screen
  take units-list "$size" 1 press:alt+n 'focus:Unit Converter' 1x press:Tab press:alt+Down focus:screen
  take matrix-settings "$size" 1 press:alt+f press:c 'focus:Display Settings' press:shift+Tab \
    press:shift+Tab press:shift+Tab press:Right
  take store "$size" 1 '5=' press:alt+c press:Up press:Up press:Return 'focus:Memory Variable' press:Down
  mapfile -d '' values < <(rows_of_data 9.8 10.1)
  config='"Mode" = 3' take question "$size" 1 "${values[@]}" press:alt+f press:x focus:screen
  config='"Mode" = 3' take file-to-open "$size" 1 press:ctrl+o focus:screen
  config='"Mode" = 2' take plotter-options "$size" 1 press:ctrl+Return focus:Graph press:alt+g press:Up \
    press:Return focus:screen
  take guide "$size" 1 press:F1 focus:Guide
  take keys "$size" 1 press:alt+h press:Down press:Return focus:screen
  take history "$size" 1 '1+2=' press:ctrl+h focus:screen
  take history-rows "$size" 1 '1+2=' press:ctrl+h press:Tab press:Tab focus:screen
  take live-result "$size" 1 '2*3+(4' focus:screen
  take fault "$size" 1 '2*(3+=' focus:screen
  take mend "$size" 1 '2*(3+4=' focus:screen
  take commas "$size" 1 '1,5+2=' focus:screen
  take shortcuts "$size" 1 down:ctrl focus:screen
  take focused-key "$size" 1 press:Tab press:Tab press:Down press:Right focus:screen
  take hovered-key "$size" 1 "hover:$key" focus:screen
  take held-key "$size" 1 "hold:$key" focus:screen
  take focused-box "$size" 1 press:alt+f press:c 'focus:Display Settings' press:Tab press:Tab
  take macro-arguments "$size" 1 press:alt+a 'focus:Macro List' press:Down press:Return focus:screen
  config='"Mode" = 2' take graph-menu "$size" 1 press:ctrl+Return focus:Graph press:alt+g press:Down focus:screen
  config='"Mode" = 2' take graph-reading "$size" 1 press:ctrl+Return focus:Graph press:Right press:Right
  config='"Mode" = 3' take file-to-save "$size" 1 "${values[@]}" press:ctrl+s focus:screen
  config='"Mode" = 3' take selected-rows "$size" 1 "${values[@]}" press:Tab press:Tab press:Down
  config='"Mode" = 3' take rows-menu "$size" 1 "${values[@]}" press:Tab press:Tab press:Down press:Menu \
    focus:screen
  config='"Mode" = 5' take matrix-selection "$size" 1 press:Tab press:Tab press:Tab press:ctrl+a
  config='"Mode" = 5' take matrix-size "$size" 1 press:alt+s focus:screen
  config='"Mode" = 5' take matrix-menu "$size" 1 press:alt+o press:Down focus:screen
  config='"Mode" = 5' take matrix-history "$size" 1 '1+2=' press:ctrl+h focus:screen
  config='"Mode" = 5' take matrix-error "$size" 1 press:Tab press:Tab press:Tab $'x+\t2' focus:screen
}

if [ $# = 0 ]; then
  for size in 240x320 480x640 1080x1440; do take_views "$size"; done
  only='dec|graph' colours=2 suffix=-dark take_views 480x640
  exit
fi
for colours in ${schemes-1 2 3}; do
  suffix=-$colours
  for size in ${sizes-240x320 360x560 480x640 1080x1440 1280x720}; do
    take_views "$size"
    take_the_rest "$size"
  done
done
