#!/usr/bin/env bash
# Unsaved work outlives a signal and the loss of the display.
set -euo pipefail

# outlives END: a signal, or "display".
outlives() (
  # shellcheck source=tests/e2e/lib.sh
  source "$(dirname "$0")/lib.sh"
  settle
  "$MARDEL" &
  program=$!
  appears 'Mardel - GUI .*'
  main=$window
  choose Right Down Return
  appears 'Add Text Item'
  xdotool type "$1"
  goes Tab space
  if [[ $1 == display ]]; then kill "$server"; else kill -"$1" "$program"; fi
  ends || true
  "$MARDEL" --recover >recovered
  diff recovered <(for each in Recovered/*; do echo "recovered: $work/$each"; done)
  grep "<text_str>$1</text_str>" Recovered/Untitled*.mrd >/dev/null
)

for end in TERM HUP display; do outlives "$end"; done
