# Whatever is done to the windows, the picture follows, and each comes back where and as it was:
# windows.sh PROGRAM MANAGER.
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"
manager=$2
begin 1366x768 "$manager"

# expect_glass NAME: a point of the glass on the axis is where the present size puts it.
expect_glass() {
  local x y found
  read -r x y < <(at_bench "$bench" 30 40)
  found=$(convert "$scratch/$1.png" -format "%[pixel:p{$x,$y}]" info:)
  if [[ $found != *"(220,220,195)"* ]]; then fail "in $1 there is $found where glass should be"; fi
}

read -r width height < <(size "$bench")
if ((width < 1350 || height < 690)); then fail "the workbench is only $width x $height"; fi
open_diaphragm "$bench" -120 130
move "$bench" $(at_bench "$bench" 300 200)
shot scene
expect_glass scene

# Rays and waves on it, then every size there and back: nothing is lost, nothing is left over.
click "$bench" 20 $((menu_bar + 78))
shift_click "$bench" $(at_bench "$bench" -260 50)
move "$bench" $(at_bench "$bench" 300 200)
shot whole
expect_some whole "$ray_in_glass" 500
if [[ $manager != none ]]; then make_ordinary "$bench"; fi
for area in 683x700 1024x560 620x440 900x900; do
  resize "$bench" "${area%x*}" "${area#*x}"
  read -r width height < <(size "$bench")
  if [[ ${width}x$height != "$area" && $area != 900x900 ]]; then
    fail "the window is ${width}x$height, not $area"
  fi
  shot "$area"
  expect_some "$area" "$ray_in_glass" 100
  expect_some "$area" "$ray_in_air" 300
done
if [[ $manager == none ]]; then
  resize "$bench" 1366 768
else
  maximise "$bench"
fi
move "$bench" $(at_bench "$bench" 300 200)
shot whole_again
expect_same whole whole_again

# Waves that run go on at another size, and behind an icon.
menu "$bench" 5
sleep 0.5
if [[ $manager != none ]]; then make_ordinary "$bench"; fi
xdotool windowsize "$bench" 900 600
sleep 0.5
snapshot "$scratch/run_1.png" "$bench"
expect_some run_1 'rgb(2,0,150)' 20
if [[ $manager != none ]]; then
  xdotool windowminimize "$bench"
  sleep 0.3
  activate "$bench"
  maximise "$bench"
fi
sleep 0.3
program_runs || fail "the program ended"
settle 30
shot run_ended

# The lens menu beside the Ibn Sahl window, which opens square at the upper left.
menu "$bench" 3
choice=$(window "CHOOSE  LENS")
settle
read -r menu_left _ < <(place "$choice")
if ((menu_left < 512)); then fail "the menu stands at $menu_left, in the Ibn Sahl window's way"; fi
click "$choice" 228 68
sahl=$(window "Ιμπν Σαχλ")
settle
opened=$(place "$sahl")
if [[ $opened != "0 0 512 512" ]]; then fail "the Ibn Sahl window opens at $opened"; fi
shot first "$sahl"

# A box of the same units at every size, and the opening again from whatever state.
resize "$sahl" 700 400
shot wide "$sahl"
expect_some wide 'rgb(0,255,255)' 100
expect_some wide "$ray_in_air" 100
again() {
  activate "$choice"
  click "$choice" 228 68
  window "Ιμπν Σαχλ" >/dev/null
  expect_place "$sahl" "$opened"
  move "$choice" 300 200
  shot again "$sahl"
  if (($(differing first again) > 0)); then fail "$1, the Ibn Sahl window opens another way"; fi
}
again "made another size"
xdotool windowmove "$sahl" 300 150
again "moved"
xdotool windowmove "$sahl" 200 100
menu "$sahl" 4
no_window "Ιμπν Σαχλ"
again "moved and left"
if [[ $manager != none ]]; then
  maximise "$sahl"
  again "maximised"
  maximise "$sahl"
  menu "$sahl" 4
  no_window "Ιμπν Σαχλ"
  again "maximised and left"
  minimise "$sahl"
  again "minimised"

  # No order of moves and minimising leaves the program without a window.
  minimise "$choice"
  menu "$sahl" 4
  choice=$(window "CHOOSE  LENS")
  minimise "$bench"
  activate "$choice"
  click "$choice" 382 68
  no_window "CHOOSE  LENS"
  bench=$(window "SPHERICAL  LENSES")
  settle
  read -r width _ < <(size "$bench")
  if ((width < 1350)); then fail "the workbench came back $width pixels wide"; fi

  # Hidden maximised and shown anew, it still knows its ordinary size.
  make_ordinary "$bench"
  resize "$bench" 900 600
  ordinary=$(place "$bench")
  maximise "$bench"
  menu "$bench" 1
  ray=$(window "ΜΙΑ ΑΚΤΙΝΑ")
  no_window "SPHERICAL  LENSES"
  click "$ray" 324 24
  bench=$(window "SPHERICAL  LENSES")
  settle
  read -r width _ < <(size "$bench")
  if ((width < 1350)); then fail "the workbench came back $width pixels wide"; fi
  make_ordinary "$bench"
  expect_place "$bench" "$ordinary"

  # An ordinary window comes back where a person left it.
  xdotool windowmove "$bench" 150 60
  settle
  ordinary=$(place "$bench")
  menu "$bench" 1
  ray=$(window "ΜΙΑ ΑΚΤΙΝΑ")
  no_window "SPHERICAL  LENSES"
  click "$ray" 324 24
  bench=$(window "SPHERICAL  LENSES")
  expect_place "$bench" "$ordinary"
else
  menu "$sahl" 4
  choice=$(window "CHOOSE  LENS")
  click "$choice" 382 68
  no_window "CHOOSE  LENS"
fi
end
