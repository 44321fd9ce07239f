#!/usr/bin/env bash
# fresh-machine.sh [FOLDER]: tries what the README promises on a machine with nothing installed. It
# makes an empty Debian 12 in FOLDER (default: a temporary one) and clones the last commit of the project
# into it. There root runs `./run`, whose answer is checked, starts the window, takes a picture of each
# screen, and runs `./test`. On another empty tree an ordinary user who has sudo does the same. It prints
# how long each step took. Output and pictures stay in build/fresh-machine; the trees are removed.
#
# It has to run as root, since it makes a system of its own. The windows are shown on a display of this
# machine, so that the tree has no package that a user would not have.
# shellcheck disable=SC2016  # single quotes hold texts for the shells in the trees
set -euo pipefail
cd -P -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/.."

if [[ $(id -u) != 0 ]]; then
  echo "This makes a system beside yours, which only root can: sudo $0 $*" >&2
  exit 1
fi
[[ -z $(git status --porcelain) ]] || echo "What is not committed is not tried." >&2
scripts/packages.sh fresh
kept=$PWD/build/fresh-machine
mkdir -p "$kept"
rm -f -- "$kept"/*.{out,err,log,png}
folder=${1-}
[[ -z $folder ]] || mkdir -p -- "$folder"
trees=$(mktemp -d ${folder:+-p "$folder"})
trap 'kill -- $(jobs -p) 2>/dev/null || true; wait; rm -rf -- "$trees"' EXIT

# become TREE USER TEXT: replaces this shell by one of USER that sees nothing but TREE, and runs TEXT.
# Its mounts end with its processes.
become() {
  exec unshare --mount --pid --fork --kill-child bash -euc '
    tree=$1 user=$2
    shift 2
    mount -t proc proc "$tree/proc"
    mount --rbind /dev "$tree/dev"
    mkdir -p "$tree/tmp/.X11-unix"
    mount --bind /tmp/.X11-unix "$tree/tmp/.X11-unix"
    home=$(chroot "$tree" getent passwd "$user" | cut -d : -f 6)
    exec chroot "$tree" setpriv --reuid "$user" --regid "$user" --init-groups env -i HOME="$home" \
      USER="$user" DISPLAY="${SHOWN_ON-}" TERM=dumb \
      PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin bash -euc "cd; $1"' \
    become "$@" </dev/null
}
in_tree() (
  become "$@"
)

# step NAME COMMAND...: runs the command. Its output goes to files of that name; the last line is shown.
step() {
  local name=$1 start=$SECONDS status=0
  shift
  # In the background: in a condition it would go on after its first failure.
  "$@" >"$kept/$name.out" 2>"$kept/$name.err" &
  wait $! || status=$?
  if ((status)); then
    tail -n 40 -- "$kept/$name.out" "$kept/$name.err"
    printf '%s FAILED after %d s\n' "$name" "$((SECONDS - start))"
    exit 1
  fi
  printf '%-16s %4d s  %s\n' "$name" "$((SECONDS - start))" "$(tail -n 1 -- "$kept/$name.out")"
}

make_empty() {
  debootstrap --variant=minbase bookworm "$trees/empty"
  du -sh "$trees/empty" | cut -f 1
}

# The machine of the ordinary user, with the clone in ~/calculator.
make_tree() {
  local user=$1 tree=$trees/$1 home
  cp -a -- "$trees/empty" "$tree"
  cp -- /etc/resolv.conf "$tree/etc/resolv.conf"
  if [[ $user != root ]]; then
    in_tree "$tree" root 'apt-get update; apt-get install -y --no-install-recommends sudo'
    in_tree "$tree" root "useradd --create-home $user"
    echo "$user ALL=(ALL) NOPASSWD: ALL" >"$tree/etc/sudoers.d/$user"
  fi
  home=$(chroot "$tree" getent passwd "$user" | cut -d : -f 6)
  git clone --quiet --no-hardlinks . "$tree$home/calculator"
  chroot "$tree" chown -R "$user:" "$home/calculator"
  git log -1 --format=%h
}

calculate() {
  local answer
  answer=$(in_tree "$trees/$1" "$1" 'cd calculator; ./run "2*sin(30)+3!"')
  echo "2*sin(30)+3! is $answer"
  [[ $answer == 7 ]]
}

# Takes a picture of each screen. The settings name the one that comes up.
take_pictures() {
  local user=$1 tree=$trees/$1 mode window started
  local -A modes=([1]=scientific [2]=plotter [3]=one-variable [4]=two-variable [5]=matrix)
  for mode in "${!modes[@]}"; do
    in_tree "$tree" "$user" 'mkdir -p .config/kav-calculator
      printf "[Config]\nMode = %s\n\"Window Geometry\" = \"0 0 360 560\"\n" '"$mode"' \
        >.config/kav-calculator/settings.toml'
    SHOWN_ON=$display become "$tree" "$user" 'cd calculator; exec ./run' &
    started=$!
    sleep 3  # until then the window of that name may be the frame that loads the screen
    window=$(DISPLAY=$display timeout 30 xdotool search --onlyvisible --sync --name '^Kav Calculator$')
    DISPLAY=$display import -window "$window" +repage "$kept/$user-${modes[$mode]}.png"
    # The first process of that machine: everything on it ends with it.
    pkill -KILL --parent "$started"
    wait "$started" || true
  done
  find "$kept" -name "$user-*.png" | wc -l
}

run_tests() {
  in_tree "$trees/$1" "$1" 'cd calculator; ./test' | tee "$kept/$1-ctest.log"
  grep -E '^[0-9]+% tests passed' "$kept/$1-ctest.log"
}

# The server chooses a free display, and writes its number to this pipe.
coproc server { exec Xvfb -displayfd 1 -noreset -screen 0 1280x1024x24 -dpi 96 -nolisten tcp 2>/dev/null; }
read -r number <&"${server[0]}"
display=:$number

step empty make_empty
for user in root somebody; do
  step "$user-clone" make_tree "$user"
  step "$user-run" calculate "$user"
  step "$user-window" take_pictures "$user"
  step "$user-test" run_tests "$user"
  rm -rf -- "${trees:?}/$user"
done
