#!/usr/bin/env bash
# What the configuration dialog stores is there at the next start; then a design is opened and
# changed, and the question about unsaved changes is answered by keys.
# shellcheck source=tests/e2e/lib.sh
source "$(dirname "$0")/lib.sh"
configure=(Down Down Down Down Down Down Down Return) # from the open File menu on

start
choose "${configure[@]}"
appears Configuration
xdotool key ctrl+a type "/no such/designs"
xdotool key Tab ctrl+a type '/lib "s"/'
xdotool key Tab ctrl+a BackSpace Tab Down Down Tab ctrl+a type 0x31
goes Return
quit
diff "$HOME/Documents/Mardel.con" "$fixtures/first.con"

start
choose "${configure[@]}"
appears Configuration
goes Return
quit
diff "$HOME/Documents/Mardel.con" "$fixtures/first.con"

# ask KEY ANSWER...: chooses the command of the key and answers the question with further keys.
ask() {
  xdotool key "$1"
  appears 'Unsaved Changes'
  goes "${@:2}"
}

settle
cp "$fixtures/undone.mrd" one.mrd
start
xdotool key ctrl+o
name_file 'Please choose file to open' "$work/one.mrd"
choose Right Down Return
appears 'Add Text Item'
goes Tab space # an empty note adds nothing, and the design counts as changed
xdotool getwindowname "$main" | grep -q "V2.1  $work/one.mrd$"
ask ctrl+n Return # No
ask ctrl+o alt+n
ask ctrl+q Escape # No
xdotool key ctrl+q
appears 'Unsaved Changes'
xdotool key alt+y
ends
diff one.mrd "$fixtures/undone.mrd"
