# The bundle asks for its angle: a number draws it, Cancel changes nothing.
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"
begin
open_diaphragm "$bench" -120 130
shot scene

menu "$bench" 2
activate "$(window "Lens Bench")"
key Escape
no_window "Lens Bench"
shot cancelled
expect_same scene cancelled

menu "$bench" 2
answer "Lens Bench" 0
no_window "Lens Bench"
shot level
expect_some level "$ray_in_air" 3000
expect_some level "$ray_in_glass" 500

menu "$bench" 2
answer "Lens Bench" 22.5
no_window "Lens Bench"
shot slanting
expect_some slanting "$ray_in_glass" 500
expect_different level slanting
end
