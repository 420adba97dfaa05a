# A run-time error shows its box, and the program ends with status 1 when the box is answered.
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"

# expect_error_box [WINDOW]: waits for the box, which has the title of that input box, and answers it.
expect_error_box() {
  local box tries
  for ((tries = 0; tries < 100; ++tries)); do
    box=$(window "Lens Bench")
    if [[ $box != "${1-}" ]]; then break; fi
    sleep 0.05
  done
  settle
  program_runs || fail "the program ended before its box was answered"
  activate "$box"
  key Return
  expect_end 1
}

# A text that is no number, to the question for an angle.
begin
menu "$bench" 2
question=$(window "Lens Bench")
answer "Lens Bench" abc
expect_error_box "$question"

# Radius 2 of the single-ray screen at 0.
start_program "$executable"
bench=$(window "SPHERICAL  LENSES")
settle
menu "$bench" 1
ray=$(window "ΜΙΑ ΑΚΤΙΝΑ")
settle
click "$ray" 90 12
key Home
expect_error_box
