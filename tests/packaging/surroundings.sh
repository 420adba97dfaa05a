# Without a display, without the one it had, or without a font with Greek letters, the program says
# so in one plain line and ends with status 1: no abort, nothing of the toolkit's own words.
source "$(dirname "${BASH_SOURCE[0]}")/../desktop/desktop.sh"
export XDG_RUNTIME_DIR=$scratch
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM

# expect_line ENGLISH: the program ends with status 1 after one line, Greek before English.
expect_line() {
  expect_end 1
  local line
  line=$(<"$log")
  if [[ $line != "Lens Bench: "*". · $1"* || $line == *$'\n'* ]]; then
    fail "expected one line with \"$1\""
  fi
}
# expect_no_start ENGLISH [NAME=VALUE...]: with those variables the program does not even start.
expect_no_start() {
  env "${@:2}" "$executable" >"$log" 2>&1 &
  program=$!
  expect_line "$1"
}

no_display="No display (X11 or Wayland) can be opened"
expect_no_start "$no_display"
expect_no_start "$no_display" WAYLAND_DISPLAY=nobody
expect_no_start "$no_display" QT_QPA_PLATFORM=no-such-platform
start_display 640x480
gone=$DISPLAY
stop_display
wait
unset DISPLAY
expect_no_start "$no_display" DISPLAY="$gone"
expect_no_start "$no_display" DISPLAY="$gone" WAYLAND_DISPLAY=nobody

doing_nothing() { :; }
asking() {
  menu "$bench" 2
  window "Lens Bench" >/dev/null
}
moving_waves() {
  menu "$bench" 4
  sleep 0.3
}
for state in doing_nothing asking moving_waves; do
  begin
  "$state"
  kill "${display_processes[0]}"
  expect_line "The display was lost"
  stop_display
done

mkdir "$scratch/no-fonts"
cat >"$scratch/fonts.conf" <<END
<?xml version="1.0"?>
<fontconfig><dir>$scratch/no-fonts</dir><cachedir>$scratch/cache</cachedir></fontconfig>
END
start_display 640x480
expect_no_start "No font with Greek letters" FONTCONFIG_FILE="$scratch/fonts.conf"
