#!/usr/bin/env bash
# Shows the four screens on a virtual display, worked by real pointer and key input, and leaves
# pictures: packaging/tour.sh PROGRAM DIR. One function a stop of the tour.
# shellcheck disable=SC2046,SC2086  # points are two words on purpose
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

# The workbench as it opens, then with its blades drawn apart before the lens.
workbench() {
  bench=$(window "SPHERICAL  LENSES")
  picture workbench
  open_diaphragm "$bench" -120 130
  picture diaphragm
}

# While the source is on the axis, where no image of it is constructed, with wave points along the
# rays, true fronts; the check box and the bundle are taken back.
bundle() {
  send_bundle
  picture bundle
  click "$bench" $waves_and_rays
  send_bundle
  picture bundle-with-waves
  key ctrl+z ctrl+z ctrl+z
}
send_bundle() {
  menu "$bench" 2
  answer "Lens Bench" 20
}

fan() {
  shift_click "$bench" $(at_bench "$bench" -260 50)
  picture fan
}

fan_with_waves() {
  click "$bench" $waves_and_rays
  shift_click "$bench" $(at_bench "$bench" -260 50)
  picture fan-with-waves
  click "$bench" $waves_and_rays
}

# The fan, saved as a vector picture.
saved() {
  local file tries
  file=$(realpath "$pictures")/saved.svg
  rm -f "$file"
  activate "$bench"
  key ctrl+s
  answer "Save the picture" "$file"
  no_window "Save the picture"
  for ((tries = 0; tries < 100; ++tries)); do
    if [[ -s $file ]]; then break; fi
    sleep 0.05
  done
  [[ -s $file ]] || fail "no vector picture was saved"
  echo "$file"
}

# waves_in_time NAME ENTRY: three moments of an animation that lasts about four seconds.
waves_in_time() {
  local moment
  menu "$bench" "$2"
  for moment in 1 2 3; do
    sleep 0.9
    frame "$1-$moment"
  done
  settle 10
}
plane_waves() { waves_in_time plane-waves 4; }
waves_of_a_point() { waves_in_time waves-of-a-point 5; }

# Placed by the press, aimed by the release.
single_ray() {
  local ray
  menu "$bench" 1
  ray=$(window "ΜΙΑ ΑΚΤΙΝΑ")
  drag "$ray" $(at_ray "$ray" -170 -90) $(at_ray "$ray" -20 -50)
  picture single-ray
  # At rest where the ray enters the glass, until the picture answers below the way of the ray.
  move "$ray" $(at_ray "$ray" 12 -44)
  move "$ray" $(at_ray "$ray" 9.3 -42.8)
  sleep 1.5
  frame law
  mogrify -crop 760x280+400+290 +repage "$pictures/law.png"
  click "$ray" 324 24
  no_window "ΜΙΑ ΑΚΤΙΝΑ"
}

lens_menu() {
  menu "$bench" 3
  choice=$(window "CHOOSE  LENS")
  picture lens-menu
}

plano_convex() {
  click "$choice" 228 68
  sahl=$(window "Ιμπν Σαχλ")
  picture ibn-sahl-plano-convex "$sahl"
  click "$sahl" 232 $((menu_bar + 12))
  click "$sahl" $(at_sahl "$sahl" 100 -15)
  picture ibn-sahl-plano-convex-rays "$sahl"
  click "$sahl" 56 $((menu_bar + 12))
  click "$sahl" $(at_sahl "$sahl" -18 0)
  picture ibn-sahl-plano-convex-waves "$sahl"
  menu "$sahl" 4
  no_window "Ιμπν Σαχλ"
}

biconvex() {
  click "$choice" 82 68
  sahl=$(window "Ιμπν Σαχλ")
  click "$sahl" 144 $((menu_bar + 12))
  click "$sahl" $(at_sahl "$sahl" 108 -10)
  picture ibn-sahl-biconvex "$sahl"
  menu "$sahl" 1
  answer "Angle in" 10
  picture ibn-sahl-biconvex-bundle "$sahl"
}

# By the menu entry "END", with status 0.
farewell() {
  menu "$sahl" 2
  expect_end 0
}

# The check box "SHOW WAVES AND RAYS" in the workbench's window, pixels.
waves_and_rays="20 $((menu_bar + 78))"

mkdir -p "$pictures"
start_display 1366x768
start_program "$program_file"
for stop in workbench bundle fan saved fan_with_waves plane_waves waves_of_a_point single_ray \
  lens_menu plano_convex biconvex farewell; do
  "$stop"
done
