# shellcheck shell=bash disable=SC2046
# Works the program from outside with real pointer and key input, and takes pictures.
# To be sourced after packaging/display.sh. Windows are X11 window numbers; points on a screen are
# in the screen's own user units, as its drawing area is scaled.

# Height of a window's menu bar, pixels.
menu_bar=${menu_bar:-19}
program=
scratch=$(mktemp -d)
log=$scratch/log

clean_up() {
  if [[ -n $program ]]; then kill "$program" 2>/dev/null || true; fi
  stop_display
  rm -rf "$scratch"
}
trap clean_up EXIT

fail() {
  echo "FAILED: $*" >&2
  if [[ -s $log ]]; then cat "$log" >&2; fi
  exit 1
}

# start_program EXECUTABLE: leaves its process number in `program`; what it says goes to `log`.
start_program() {
  if [[ ! -x $1 ]]; then fail "no program $1"; fi
  "$1" >"$log" 2>&1 &
  program=$!
}

program_runs() { [[ -n $program ]] && kill -0 "$program" 2>/dev/null; }

# expect_end STATUS: waits up to ten seconds for the program to end, with that exit status.
expect_end() {
  local tries status=0
  for ((tries = 0; tries < 200; ++tries)); do
    program_runs || break
    sleep 0.05
  done
  if program_runs; then fail "the program should have ended"; fi
  wait "$program" || status=$?
  program=
  if ((status != $1)); then fail "the program ended with status $status, not $1"; fi
}

# window TITLE-PATTERN: the number of the visible window with that title, once it is there.
window() {
  local tries found
  for ((tries = 0; tries < 200; ++tries)); do
    program_runs || fail "the program ended before a window \"$1\" came"
    found=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | tail -n 1) || true
    if [[ -n $found ]]; then
      echo "$found"
      return
    fi
    sleep 0.05
  done
  fail "no window \"$1\""
}

no_window() {
  local tries
  for ((tries = 0; tries < 200; ++tries)); do
    if [[ -z $(xdotool search --onlyvisible --name "$1" 2>/dev/null) ]]; then return; fi
    sleep 0.05
  done
  fail "window \"$1\" is still there"
}

# size WINDOW: its width and height, pixels.
size() {
  local WIDTH HEIGHT
  eval "$(xdotool getwindowgeometry --shell "$1" | grep -E '^(WIDTH|HEIGHT)=')"
  echo "$WIDTH $HEIGHT"
}

# at_bench, at_ray, at_sahl WINDOW X Y: the pixel of a user point in the window of the workbench
# (half width and half height are 600 units together), of the single-ray screen (the same, without
# a menu bar) and of the Ibn Sahl screen (-120..150 by 120..-120).
at_bench() { even_units "$1" "$menu_bar" "$2" "$3"; }
at_ray() { even_units "$1" 0 "$2" "$3"; }
even_units() {
  local width height
  read -r width height < <(size "$1")
  awk -v w="$width" -v h="$((height - $2))" -v bar="$2" -v x="$3" -v y="$4" 'BEGIN {
    u = (w + h) / 1200
    printf "%.0f %.0f\n", w / 2 + x * u, bar + h / 2 - y * u
  }'
}
at_sahl() {
  local width height
  read -r width height < <(size "$1")
  awk -v w="$width" -v h="$((height - menu_bar))" -v bar="$menu_bar" -v x="$2" -v y="$3" 'BEGIN {
    printf "%.0f %.0f\n", (x + 120) / 270 * w, bar + (120 - y) / 240 * h
  }'
}

# move WINDOW PX PY, press, release, click: the pointer, in pixels of the window.
move() { xdotool mousemove --window "$1" "$2" "$3"; }
press() { xdotool mousedown 1; }
release() { xdotool mouseup 1; }
click() {
  move "$@"
  xdotool click 1
}
# drag WINDOW PX PY QX QY: from one pixel to another, in steps as a hand moves.
drag() {
  local step
  move "$1" "$2" "$3"
  press
  for step in 1 2 3 4; do
    move "$1" $(($2 + ($4 - $2) * step / 4)) $(($3 + ($5 - $3) * step / 4))
    sleep 0.03
  done
  release
}
shift_click() {
  xdotool keydown shift
  click "$@"
  xdotool keyup shift
}

# activate WINDOW: brings it to the front, where keys go.
activate() {
  if xdotool get_desktop >/dev/null 2>&1; then
    xdotool windowactivate --sync "$1"
  else
    # Without a window manager.
    xdotool windowraise "$1" windowfocus --sync "$1"
  fi
}
key() { xdotool key --clearmodifiers --delay 20 "$@"; }
# answer TITLE-PATTERN TEXT: types the text into that input box and accepts it.
answer() {
  activate "$(window "$1")"
  key ctrl+a
  xdotool type --delay 20 "$2"
  key Return
}

# menu WINDOW N: the N-th entry of the menu bar, counted from 1, by keyboard.
menu() {
  local step
  activate "$1"
  key Alt_L
  for ((step = 1; step < $2; ++step)); do key Right; done
  key Return
}

# open_diaphragm WORKBENCH X HALF: draws the closed blades, which stand at 0, to the abscissa X and
# apart, each by HALF units.
open_diaphragm() {
  drag "$1" $(at_bench "$1" 0 100) $(at_bench "$1" "$2" "$3")
  drag "$1" $(at_bench "$1" "$2" -100) $(at_bench "$1" "$2" $((-$3)))
}

# settle [SECONDS]: until the display has stopped changing, or that time (3 seconds) has passed.
settle() {
  local now before='' until=$((SECONDS + ${1:-3}))
  while ((SECONDS <= until)); do
    sleep 0.15
    now=$(import -silent -window root rgb:- | cksum)
    if [[ $now == "$before" ]]; then return; fi
    before=$now
  done
}

# snapshot FILE [WINDOW]: the whole display, or one window of it, as it is now.
snapshot() { import -silent -window "${2:-root}" "$1"; }

# pixels FILE COLOUR [FUZZ]: how many pixels have that colour ("rgb(255,0,0)"), give or take.
pixels() {
  convert "$1" -alpha off -fuzz "${3:-0%}" -transparent "$2" -alpha extract -negate \
    -precision 12 -format '%[fx:round(mean*w*h)]\n' info:
}
