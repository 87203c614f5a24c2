#!/usr/bin/env bash
# Two blocks are placed, wired and given a value, a note is added, the design is saved; it is run
# from RAM, fails to assemble and is stored in location 15, with tools that record how they are
# called; and all the edits are undone.
# shellcheck source=tests/e2e/lib.sh
source "$(dirname "$0")/lib.sh"

# at X Y COMMAND...: with the mouse at that point of the canvas.
at() {
  xdotool mousemove --window "$main" "$1" $(($2 + top)) "${@:3}"
}

# generates NAME OPTIONS: answers the requester by a name that is new to it; the tools are called, the
# assembler with these options.
generates() {
  name_file 'Please choose file to save' "$work/$1.dvc"
  is_called "DravikPreProc.exe -l $work $work/$1.dvc"
  is_called "DravikCmdAsm.exe $2 -i 0x30 $work/$1.dvo"
}

is_called() {
  local call
  read -r -t 60 -u "$calls" call || in_vain "$1"
  diff <(echo "$call") <(echo "$1")
}

cat >DravikPreProc.exe <<EOF
#!/bin/sh
echo "\${0##*/} \$*" >"$work/calls"
[ ! -e "$work/fail" ] || [ "\${0##*/}" = DravikPreProc.exe ]
EOF
chmod +x DravikPreProc.exe
cp DravikPreProc.exe DravikCmdAsm.exe
settle
start
choose Left Down Return
appears 'About Mardel'
# The window behind the box is painted by now; its first row in the colour of the canvas:
top=$(import -window "$main" -crop 1x100+600+0 txt:- | awk -F '[,:]' '/#DCDCDC/ && !n { print n = $2 }')
goes Return

choose Right Right Down Down Down Right Return
at 30 30 mousedown 1
at 330 130 mouseup 1
choose Right Right Right Return
at 63 23 mousedown 1
at 200 200 key Escape
at 315 123 mouseup 1 # no wire any more
at 63 23 mousedown 1
at 315 123 mouseup 1
at 330 130 click 3
appears 'Device Info and Parameters'
xdotool type 0.5
goes Return
choose Right Down Return
appears 'Add Text Item'
xdotool type '5 < 6 & "7"'
goes Tab space
xdotool key ctrl+shift+s
name_file 'Please choose file to save' "$work/one.mrd"

xdotool key ctrl+g
generates run -re
appears Running
goes Return
is_called 'DravikCmdAsm.exe -ee -i 0x30'
choose Down Down Down Down Down Down Right Up Return
generates stored '-p 15'
touch fail
xdotool key ctrl+g
generates failed -re
appears ERROR
goes Return

xdotool key ctrl+z ctrl+z ctrl+z ctrl+shift+s
name_file 'Please choose file to save' "$work/two.mrd"
quit
diff one.mrd "$fixtures/done.mrd"
diff two.mrd "$fixtures/undone.mrd"
sed -E 's/^; [0-9]+ [A-Z][a-z]{2} 20[0-9]{2}, [0-9:]{8}$/; DATE/' stored.dvc | diff - "$fixtures/done.dvc"
