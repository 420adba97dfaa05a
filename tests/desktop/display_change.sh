# A display that shrinks and grows while the program runs is followed: display_change.sh PROGRAM MANAGER.
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"
manager=$2
begin 1366x768 "$manager"
shot large

# display WIDTH HEIGHT: gives the display this size, no larger than it was made.
display() {
  local mode=${1}x$2
  xrandr --newmode "$mode" 50 "$1" "$1" "$1" "$1" "$2" "$2" "$2" "$2" 2>/dev/null || true
  xrandr --addmode screen "$mode" 2>/dev/null || true
  xrandr --output screen --mode "$mode"
  settle
}
expect_filled() {
  local width height tries
  for ((tries = 0; tries < 60; ++tries)); do
    read -r width height < <(size "$bench")
    if ((width > $1 - 16 && width <= $1 && height > $2 - 80 && height <= $2)); then return; fi
    sleep 0.05
  done
  fail "on $1 x $2 the workbench is $width x $height"
}

expect_filled 1366 768
display 1024 600
expect_filled 1024 600
shot small
expect_some small "$glass" 1000
display 800 600
expect_filled 800 600
display 1366 768
expect_filled 1366 768
shot large_again
expect_same large large_again
end
