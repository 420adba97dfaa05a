# Everything by keyboard alone: no pointer is ever moved or pressed.
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"
begin
activate "$bench"

# tab N: the Tab key so many times.
tab() {
  local i
  for ((i = 0; i < $1; ++i)); do key Tab; done
}
# times N KEY: a key so many times.
times() {
  local i keys=()
  for ((i = 0; i < $1; ++i)); do keys+=("$2"); done
  key "${keys[@]}"
}

# The picture comes after the 19 controls: first the source, then the blades.
tab 19
shot at_source
times 6 shift+Left
times 4 shift+Up
times 5 ctrl+Up
shot source_moved
expect_different at_source source_moved
key Tab
times 13 shift+Up
key Tab
times 13 shift+Down
key Tab
times 12 shift+Left
shot open
expect_different source_moved open
times 3 shift+Tab
key Return
shot fan
expect_some fan "$ray_in_glass" 500
expect_some fan "$ray_in_air" 1000

# A radius on the picture, its edge the seventh thing.
tab 6
times 2 shift+Right
shot radius
expect_none radius "$ray_in_glass"
expect_different open radius

# Waves that are paused stand, are stepped, and go on.
menu "$bench" 5
sleep 1
key space
shot paused
sleep 0.7
shot still
expect_same paused still
times 3 period
shot ahead
expect_different paused ahead
times 3 comma
shot back
expect_same paused back
key space
sleep 0.5
key space
shot further
expect_different paused further
key space

# The single ray: its source, its aim, the ray.
menu "$bench" 1
ray=$(window "ΜΙΑ ΑΚΤΙΝΑ")
activate "$ray"
tab 9
shot ray_before "$ray"
times 5 shift+Down
key Tab
times 3 shift+Up
key Return
shot ray_sent "$ray"
expect_different ray_before ray_sent
expect_some ray_sent "$ray_in_air" 300
key Escape
bench=$(window "SPHERICAL  LENSES")
no_window "ΜΙΑ ΑΚΤΙΝΑ"

# Ibn Sahl, through the lens menu and back.
menu "$bench" 3
choice=$(window "CHOOSE  LENS")
activate "$choice"
key Tab
key space
sahl=$(window "Ιμπν Σαχλ")
activate "$sahl"
shot opened "$sahl"
key shift+Tab
times 2 shift+Tab
times 2 shift+Down
shot sahl_moved "$sahl"
expect_different opened sahl_moved
expect_some sahl_moved 'rgb(0,255,255)' 100

# Full screen and back, help beside it.
read -r width _ < <(size "$sahl")
key F11
settle
read -r full _ < <(size "$sahl")
if ((full != 1366)); then fail "full screen is $full wide"; fi
key Escape
settle
read -r ordinary _ < <(size "$sahl")
if ((ordinary != width)); then fail "after full screen the window is $ordinary wide, not $width"; fi
key F1
help=$(window "Βοήθεια · Help")
settle
activate "$help"
key Escape
no_window "Βοήθεια · Help"
activate "$sahl"
key Escape
no_window "Ιμπν Σαχλ"
choice=$(window "CHOOSE  LENS")
activate "$choice"
key Escape
no_window "CHOOSE  LENS"

# On the workbench the same key does nothing more.
activate "$bench"
key Escape
sleep 0.3
program_runs || fail "Escape ended the program"
end
