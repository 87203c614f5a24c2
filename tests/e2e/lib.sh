# What the scripts beside this one share: a display, a window system and a home of their own, and a
# hand on keyboard and mouse. Every wait is for something that the program shows or does, and tells
# after a minute what that was.
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

# within_a_minute WHAT COMMAND...: ends the script when the command takes longer or fails.
within_a_minute() {
  timeout 60 "${@:2}" || in_vain "$1"
}
in_vain() {
  echo "${BASH_SOURCE[-1]}: waited in vain for $1" >&2
  exit 1
}

mkfifo display calls
exec {display}<>display {calls}<>calls
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>&"$display" &>/dev/null &
server=$!
read -r -t 60 -u "$display" number || in_vain "a display"
export DISPLAY=:$number
openbox --startup "sh -c 'echo ready >$work/calls'" &>/dev/null &
read -r -t 60 -u "$calls" _ || in_vain "the window manager"
# A line for each change of the list of windows, told from before the first one on.
exec {changes}< <(xprop -root -notype -spy _NET_CLIENT_LIST)
windows=

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

# appears TITLE: waits for the window and for its having the keyboard; leaves its id in $window. Of
# windows that go while they are asked for their titles nothing is told.
appears() {
  local id
  window=
  while :; do
    for id in ${windows//,/ }; do
      if xprop -id "$id" -notype _NET_WM_NAME 2>/dev/null | grep -qx ".* = \"$1\""; then window=$id; fi
    done
    [[ -z $window ]] || break
    read -r -t 60 -u "$changes" windows || in_vain "a window named $1"
    windows=${windows#*#}
  done
  within_a_minute "the keyboard in $1" xdotool windowactivate --sync "$window"
}

# closes KEY...: types the keys and waits for $window to be gone.
closes() {
  local gone
  exec {gone}< <(xprop -id "$window" -spy WM_STATE 2>/dev/null)
  read -r -t 60 -u "$gone" _ || in_vain "the state of the window"
  xdotool key "$@"
  within_a_minute "the window's going at $*" cat <&"$gone" >/dev/null
  exec {gone}<&-
}

# goes KEY...: the same, and waits for the main window to be back.
goes() {
  closes "$@"
  within_a_minute "the main window" xdotool windowactivate --sync "$main"
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
  window=$main
  closes ctrl+q
  ends
}

# ends: waits for the program.
ends() {
  within_a_minute "the program's end" tail -s 0.1 --pid="$program" -f /dev/null
  wait "$program" 2>/dev/null
}
