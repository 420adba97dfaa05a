# On a processor limited to a tenth the picture follows a scroll bar that is dragged as fast as
# events come: frames are dropped, and no input queues up.
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"
begin 3840x2160
read -r width height < <(size "$bench")
# The part of the picture in which no control stands.
middle="[$((width - 100))x$((height - 300))+0+150]"

# The bar of the left circle's radius: where its thumb stands at the start, and where it is at its end.
bar_y=$((menu_bar + 18))
least=30
most=110
take_thumb() {
  move "$bench" "$least" "$bar_y"
  press
}

# The picture of the place where the drags below end, come to without haste.
take_thumb
shot begun
move "$bench" "$most" "$bar_y"
shot last
expect_different begun last
move "$bench" "$least" "$bar_y"
shot begun_again
expect_different begun_again last
release

# slow_down PROCESS: lets it run a hundredth of a second in each tenth.
slow_down() {
  while kill -0 "$$" 2>/dev/null && kill -STOP "$1" 2>/dev/null; do
    sleep 0.09
    kill -CONT "$1"
    sleep 0.01
  done
}
# Seconds of the processor that the program has taken.
worked() { awk -v tick="$(getconf CLK_TCK)" '{ print ($14 + $15) / tick }' "/proc/$program/stat"; }

# to_and_fro TIMES [PAUSE]: commands for the whole way of the thumb, a pixel an event, ending at the
# right end, with a pause in seconds after each.
to_and_fro() {
  local round x
  for ((round = 0; round < $1; ++round)); do
    for ((x = most; x >= least; --x)); do echo "mousemove --window $bench $x $bar_y ${2+sleep $2}"; done
    for ((x = least; x <= most; ++x)); do echo "mousemove --window $bench $x $bar_y ${2+sleep $2}"; done
  done
}

take_thumb
slow_down "$program" &
slowing=$!
before=$(worked)
begun=$EPOCHREALTIME

# While a hand moves to and fro, other and other pictures are seen.
while :; do to_and_fro 1 0.01 | xdotool -; done &
hand=$!
for moment in 1 2 3; do
  sleep 0.5
  snapshot "$scratch/moment_$moment.png" "$bench"
done
kill "$hand"
wait "$hand" 2>/dev/null || true
# Two of them may have caught the same value.
if (($(differing moment_1 moment_2) == 0)); then expect_different moment_2 moment_3; fi

# Thousands of events at once: the last of them is seen soon.
to_and_fro 20 | xdotool -
for ((tries = 0; tries < 20; ++tries)); do
  snapshot "$scratch/hurried.png" "$bench"
  if (($(differing last hurried "$middle") == 0)); then break; fi
  sleep 0.1
done
expect_same last hurried
share=$(awk -v before="$before" -v now="$(worked)" -v from="$begun" -v to="$EPOCHREALTIME" \
  'BEGIN { printf "%d", 100 * (now - before) / (to - from) }')
if ((share > 20)); then fail "the program had $share % of a processor"; fi

kill "$slowing"
wait "$slowing" 2>/dev/null || true
kill -CONT "$program"
release
end
