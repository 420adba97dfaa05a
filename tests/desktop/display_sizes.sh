# The workbench fills displays from small to large, upright and fine ones too, its lens in the middle
# and uncovered, and every command within reach.
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"

# expect_display SIZE [RATIO]: the program on a display of so many device pixels, RATIO to a logical one.
expect_display() {
  local width height x y found
  export QT_SCALE_FACTOR=${2:-1}
  menu_bar=$(awk -v r="$QT_SCALE_FACTOR" 'BEGIN { printf "%d", 19 * r }')
  begin "$1"
  read -r width height < <(size "$bench")
  if ((width != ${1%x*})); then fail "on $1 the workbench is $width pixels wide"; fi
  if ((height > ${1#*x} || height < ${1#*x} - 60)); then
    fail "on $1 the workbench is $height pixels high"
  fi
  # A point of the glass, right of the closed blades and clear of the marks on the axis.
  read -r x y < <(at_bench "$bench" 25 30)
  shot "$1"
  found=$(convert "$scratch/$1.png" -format "%[pixel:p{$x,$y}]" info:)
  if [[ $found != *"(220,220,195)"* ]]; then fail "on $1 there is $found where glass should be"; fi

  # Each window as a whole on the display, and the way back from it within reach.
  menu "$bench" 3
  choice=$(window "CHOOSE  LENS")
  settle
  expect_inside "$choice" "$1"
  click "$choice" $(awk -v r="$QT_SCALE_FACTOR" 'BEGIN { print int(228 * r), int(68 * r) }')
  sahl=$(window "Ιμπν Σαχλ")
  settle
  expect_inside "$sahl" "$1"
  menu "$sahl" 4
  no_window "Ιμπν Σαχλ"
  end
  stop_display
}

# expect_inside WINDOW SIZE
expect_inside() {
  local x y width height
  read -r x y width height < <(place "$1")
  if ((x < 0 || y < 0 || x + width > ${2%x*} || y + height > ${2#*x})); then
    fail "on $2 a window of $width x $height stands at $x, $y"
  fi
}

for display in 1024x600 1366x768 1920x1080 640x480 1080x1920; do
  expect_display "$display"
done
expect_display 1366x768 2
expect_display 1024x600 1.5
