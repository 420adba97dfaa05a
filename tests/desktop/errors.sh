# A run-time error shows its box, and the program ends with status 1.
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"

# A text that is no number, to the question for an angle.
begin
menu "$bench" 2
window "Lens Bench" >/dev/null
answer abc
box=$(window "Lens Bench")
shot type_mismatch "$box"
program_runs || fail "the program ended before its box was answered"
activate "$box"
key Return
expect_end 1

# Radius 2 of the single-ray screen at 0.
start_program "$executable"
bench=$(window "SPHERICAL  LENSES")
settle
menu "$bench" 1
ray=$(window "ΜΙΑ ΑΚΤΙΝΑ")
click "$ray" 90 12
key Home
box=$(window "Lens Bench")
activate "$box"
key Return
expect_end 1
