# What the scripts beside this one share: a display, a window system and a home of their own, and a
# hand on keyboard and mouse. Every wait is for something that the program shows or does.
# shellcheck shell=bash
set -euo pipefail
fixtures=$(cd "$(dirname "${BASH_SOURCE[0]}")/../fixtures/e2e" && pwd)
work=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null || true; rm -rf "$work"' EXIT
unset QT_SCALE_FACTOR QT_QPA_PLATFORMTHEME QT_STYLE_OVERRIDE XDG_CURRENT_DESKTOP
export HOME=$work XDG_CONFIG_HOME=$work/.config LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb
mkdir "$work/Documents"
cp "$fixtures"/*.dvl "$work/"
cd "$work"

mkfifo display calls
exec {display}<>display {calls}<>calls
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>&"$display" &>/dev/null &
server=$!
read -r -u "$display" number
export DISPLAY=:$number
openbox --startup "sh -c 'echo ready >$work/calls'" &>/dev/null &
read -r -u "$calls" _

# settle: every folder of the configuration is the current one.
settle() {
  cat >Mardel.con <<EOF
<MardelConfig>
<libraries_path>$work</libraries_path><files_path>$work</files_path><exec_path>$work</exec_path>
</MardelConfig>
EOF
}

# Leaves the process in $program and its window in $main. A program that fails takes the display
# with it, so that no wait for a window of it goes on.
start() {
  ("$MARDEL" || kill "$server") &
  program=$!
  appears 'Mardel - GUI .*'
  main=$window
}

# appears TITLE: waits for the window and for its having the keyboard; leaves its id in $window.
appears() {
  window=$(xdotool search --sync --onlyvisible --limit 1 --name "^$1\$")
  xdotool windowactivate --sync "$window"
}

# goes KEY...: types the keys and waits for $window to be gone and the main window to be back.
goes() {
  local gone
  exec {gone}< <(xprop -id "$window" -spy WM_STATE 2>/dev/null)
  read -r -u "$gone" _
  xdotool key "$@"
  cat <&"$gone" >/dev/null
  exec {gone}<&-
  xdotool windowactivate --sync "$main"
}

# choose KEY...: from the open File menu on.
choose() {
  xdotool mousemove --window "$main" 12 8 click 1 key "$@"
}

# name_file TITLE PATH: answers a requester.
name_file() {
  appears "$1"
  xdotool type "$2"
  goes Return
}

# Ends the program by Quit, which has nothing to ask.
quit() {
  xdotool key ctrl+q
  wait "$program"
}
