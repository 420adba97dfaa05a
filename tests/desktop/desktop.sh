# shellcheck shell=bash disable=SC2034,SC2046
# What the desktop tests share: the program on a display, and questions to pictures.
# To be sourced by a test that got the program as its first argument.
set -euo pipefail
root=$(dirname "${BASH_SOURCE[0]}")/../..
source "$root/packaging/display.sh"
source "$root/packaging/robot.sh"

executable=$1

# What a test's figures are made of.
ray_in_air='rgb(255,0,0)'
ray_in_glass='rgb(0,0,255)'
glass='rgb(220,220,195)'

# begin [SIZE [MANAGER]]: the program on a display of its own; the workbench's window in `bench`.
begin() {
  start_display "${1:-1366x768}" "${2-}"
  start_program "$executable"
  bench=$(window "SPHERICAL  LENSES")
  settle
}

# Ends the program by the workbench's own entry, which is asked of every test that can.
end() {
  local tries
  menu "$bench" 6
  for ((tries = 0; tries < 60; ++tries)); do
    program_runs || break
    sleep 0.05
  done
  # Keys that come while the window manager is still busy with a window may be lost.
  if program_runs; then
    key Escape
    menu "$bench" 6
  fi
  expect_end 0
}

# shot NAME [WINDOW]: a picture at rest.
shot() {
  settle
  snapshot "$scratch/$1.png" "${2:-$bench}"
}

# count NAME COLOUR: pixels of about that colour in that picture. A line may lie between two rows
# of pixels, so a third of the way towards white is still its colour.
count() { pixels "$scratch/$1.png" "$2" 33%; }

expect_some() {
  local found
  found=$(count "$1" "$2")
  if ((found < $3)); then fail "picture $1 has $found pixels of $2, less than $3"; fi
}
expect_none() {
  local found
  found=$(count "$1" "$2")
  if ((found > 0)); then fail "picture $1 has $found pixels of $2"; fi
}

# differing NAME NAME [REGION]: how many pixels of the two pictures differ.
differing() {
  local answer status=0
  answer=$(compare -metric AE "$scratch/$1.png${3-}" "$scratch/$2.png${3-}" null: 2>&1) || status=$?
  if ((status > 1)); then fail "pictures $1 and $2 cannot be compared: $answer"; fi
  awk -v n="$answer" 'BEGIN { printf "%d\n", n }'
}
# The part of the workbench, on a display of 1366x768, in which no control stands: a control may look
# different because it has the focus or is held.
middle='[1300x540+0+110]'
expect_same() {
  local found
  found=$(differing "$1" "$2" "$middle")
  if ((found > 0)); then fail "the middles of pictures $1 and $2 differ in $found pixels"; fi
}
expect_different() {
  if (($(differing "$1" "$2") == 0)); then fail "pictures $1 and $2 are the same"; fi
}

# place WINDOW: X Y WIDTH HEIGHT of the window with its frame, pixels.
place() {
  local x y width height left=0 right=0 top=0 bottom=0
  read -r x y width height < <(xwininfo -id "$1" | awk -F: '
    /Absolute upper-left [XY]/ || /^ *(Width|Height)/ { printf "%d ", $2 } END { print "" }')
  IFS=', ' read -r left right top bottom < <(
    xprop -id "$1" _NET_FRAME_EXTENTS | sed -n 's/.*= //p' | grep . || echo "0, 0, 0, 0"
  )
  echo "$((x - left)) $((y - top)) $((width + left + right)) $((height + top + bottom))"
}
expect_place() {
  local found tries
  for ((tries = 0; tries < 40; ++tries)); do
    found=$(place "$1")
    if [[ $found == "$2" ]]; then return; fi
    sleep 0.05
  done
  fail "the window stands at $found, not at $2"
}

# minimise WINDOW, as the frame's button does.
minimise() {
  xdotool windowminimize "$1"
  settle
}
maximise() {
  wmctrl -i -r "$1" -b add,maximized_vert,maximized_horz
  settle
}
make_ordinary() {
  wmctrl -i -r "$1" -b remove,maximized_vert,maximized_horz
  settle
}
# resize WINDOW WIDTH HEIGHT: the client area with the menu bar, pixels.
resize() {
  xdotool windowsize "$1" "$2" "$3"
  settle
}
