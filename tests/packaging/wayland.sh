#!/usr/bin/env bash
# The program on a desktop that has Wayland alone: wayland.sh PROGRAM. First on a compositor that
# nobody sees; then on one that is itself a window of a virtual X11 display, which gives it real
# pointer and key input.
source "$(dirname "${BASH_SOURCE[0]}")/../desktop/desktop.sh"
unset DISPLAY QT_QPA_PLATFORM
export XDG_RUNTIME_DIR=$scratch/run WAYLAND_DISPLAY=lens-bench
mkdir -m 700 "$XDG_RUNTIME_DIR"

# start_compositor OPTION...: as the last of the display's processes.
start_compositor() {
  local tries
  cat >"$scratch/weston.ini" <<END
[shell]
panel-position=none
locking=false
[output]
name=X1
mode=1366x768
END
  weston --config="$scratch/weston.ini" --socket="$WAYLAND_DISPLAY" --idle-time=0 "$@" \
    >"$scratch/compositor" 2>&1 &
  compositor=$!
  display_processes+=("$compositor")
  for ((tries = 0; tries < 200; ++tries)); do
    if [[ -S $XDG_RUNTIME_DIR/$WAYLAND_DISPLAY ]]; then return; fi
    sleep 0.05
  done
  fail "no compositor: $(<"$scratch/compositor")"
}

# start_shown: the program, without X11, until it has handed the workbench's picture over.
start_shown() {
  local tries
  env -u DISPLAY WAYLAND_DEBUG=1 "$executable" >"$log" 2>&1 &
  program=$!
  for ((tries = 0; tries < 200; ++tries)); do
    program_runs || fail "the program ended before its window came"
    if grep -q 'set_title("SPHERICAL  LENSES' "$log" && grep -q 'attach(wl_buffer' "$log"; then return; fi
    sleep 0.05
  done
  fail "no window of the workbench"
}

# exact NAME COLOUR: how many pixels have that very colour, which the body of the lens is filled with.
exact() { pixels "$scratch/$1.png" "$2" 1%; }

start_compositor --backend=headless-backend.so --width=1366 --height=768
for signal in TERM HUP; do
  start_shown
  kill -s "$signal" "$program"
  expect_end $((128 + $(kill -l "$signal")))
done
start_shown
kill "$compositor"
expect_end 1
[[ $(grep -c '^Lens Bench: .*The display was lost' "$log") == 1 ]] || fail "the loss was not said"
stop_display
wait

# Where there is X11 too, it is used.
start_display 1366x768
export WAYLAND_DISPLAY=lens-bench
start_compositor --backend=headless-backend.so --width=1366 --height=768
start_program "$executable"
window "SPHERICAL  LENSES" >/dev/null
kill "$program"
expect_end 143
stop_display
wait

start_display 1366x768
export WAYLAND_DISPLAY=lens-bench
start_compositor --backend=x11-backend.so --use-pixman --fullscreen
bench=root
# On X11 alone would a window of the program be found; the compositor's is the only one.
start_shown
settle
shot workbench
if (($(exact workbench "$glass") < 20000)); then fail "no lens on the workbench"; fi
if xdotool search --onlyvisible --name "SPHERICAL" >/dev/null; then fail "it runs on X11"; fi

# point_to X Y: the pointer there. The compositor adds up how far it is moved, and may miss the
# first way; in the corner, beyond which nothing leads, both agree again.
point_to() {
  xdotool mousemove 200 200
  sleep 0.2
  xdotool mousemove 0 0
  sleep 0.2
  xdotool mousemove "$1" "$2"
  sleep 0.2
}

# By keyboard to the single ray, and by the pointer back; the picture is placed by the compositor.
key Alt_L
key Return
shot ray
if (($(exact ray "$glass") > 0)); then fail "the workbench is still there"; fi
if (($(exact ray 'rgb(0,255,0)') < 1000)); then fail "no lens on the single-ray screen"; fi
point_to 327 55
xdotool click 1
shot back
if (($(exact back "$glass") < 20000)); then fail "no way back to the workbench"; fi

key Alt_L
key Right Right Right Right Right
key Return
expect_end 0
echo "Wayland alone: all passed"
