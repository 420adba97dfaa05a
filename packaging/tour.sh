#!/usr/bin/env bash
# Shows the four screens on a virtual display, worked by real pointer and key input, and leaves
# pictures: packaging/tour.sh PROGRAM DIR. One function a stop of the tour.
set -euo pipefail
here=$(dirname "${BASH_SOURCE[0]}")
source "$here/display.sh"
source "$here/robot.sh"

program_file=$1
pictures=$2

# picture NAME [WINDOW]: waits for the screen to come to rest, takes and names the picture.
picture() {
  settle
  frame "$@"
}

# frame NAME [WINDOW]: the same without waiting, for what moves.
frame() {
  program_runs || fail "the program ended before picture $1"
  snapshot "$pictures/$1.png" "${@:2}"
  echo "$pictures/$1.png"
}

stops=()

mkdir -p "$pictures"
start_display 1366x768
start_program "$program_file"
for stop in "${stops[@]}"; do "$stop"; done
