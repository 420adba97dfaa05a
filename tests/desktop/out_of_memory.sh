# Memory that runs out is told in the error box, and the program ends with status 1 when the box is
# answered.
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"

# A large display, on which the window is small until there is hardly any memory left to be had.
begin 4000x2400
make_ordinary "$bench"
resize "$bench" 700 460
shot small "$bench"
taken=$(awk '/^VmSize/ { print $2 * 1024 }' "/proc/$program/status")
prlimit --pid "$program" --as=$((taken + (8 << 20)))
maximise "$bench"
box=$(window "Lens Bench")
settle
program_runs || fail "the program ended before its box was answered"
# The box has words.
shot box "$box"
colours=$(convert "$scratch/box.png" -format '%k' info:)
if ((colours < 20)); then fail "the box has only $colours colours"; fi
activate "$box"
key Return
expect_end 1
