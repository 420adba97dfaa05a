# A window behind an icon or on another desktop holds no pixels, though its waves go on; it comes
# back with the picture of its value.
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"
begin 1920x1080
open_diaphragm "$bench" -120 130
shift_click "$bench" $(at_bench "$bench" -260 50)
move "$bench" $(at_bench "$bench" 300 200)
shot fan

# Kilobytes of memory that the program and its pictures take.
held() { awk '/^Rss(Anon|Shmem)/ { sum += $2 } END { print sum }' "/proc/$program/status"; }
# expect_less BEFORE: the pixels take 14 megabytes, the picture of the window as the display has it 8.
expect_less() {
  local now tries
  for ((tries = 0; tries < 40; ++tries)); do
    now=$(held)
    if ((now < $1 - 12000)); then return; fi
    sleep 0.05
  done
  fail "out of sight the program still holds $now kB of $1"
}

in_sight=$(held)
minimise "$bench"
expect_less "$in_sight"
activate "$bench"
shot after_icon
expect_same fan after_icon

in_sight=$(held)
xdotool set_desktop 1
settle
expect_less "$in_sight"
xdotool set_desktop 0
# The window manager says for a moment, in a box over the picture, which desktop this is.
sleep 1.5
shot after_desktop
expect_same fan after_desktop

# Waves that ran behind an icon have come to their end, as they would have in sight.
menu "$bench" 5
settle 10
shot rest
menu "$bench" 5
sleep 0.5
minimise "$bench"
sleep 6
activate "$bench"
shot rest_again
expect_same rest rest_again
end
