# A signal that asks the program to end does so whatever it is doing, by that signal, and leaves
# nothing behind.
source "$(dirname "${BASH_SOURCE[0]}")/../desktop/desktop.sh"

# A home of its own, in which whatever is left behind would show.
home=$scratch/home
mkdir -p "$home/tmp"
mkdir -m 700 "$home/run"
at_home=(-u XDG_CONFIG_HOME -u XDG_CACHE_HOME -u XDG_DATA_HOME -u XDG_STATE_HOME
  HOME="$home" TMPDIR="$home/tmp" XDG_RUNTIME_DIR="$home/run")

# A shell has its background jobs ignore SIGINT; this one starts the program as a person does.
start_heeding() {
  env --default-signal "${at_home[@]}" "$executable" >"$log" 2>&1 &
  program=$!
  bench=$(window "SPHERICAL  LENSES")
}

expect_nothing_left() {
  local left
  left=$(find "$home" ! -type d ! -path "$home/.cache/fontconfig/*")
  if [[ -n $left ]]; then fail "left behind: $left"; fi
  if [[ -s $log ]]; then fail "the program said something"; fi
  no_window "Lens Bench|SPHERICAL"
}

doing_nothing() { :; }
asking() {
  menu "$bench" 2
  window "Lens Bench" >/dev/null
}
moving_waves() {
  menu "$bench" 4
  sleep 0.3
}

start_display 1366x768
for state in doing_nothing asking moving_waves; do
  for signal in TERM INT HUP; do
    start_heeding
    "$state"
    kill -s "$signal" "$program"
    expect_end $((128 + $(kill -l "$signal")))
    expect_nothing_left
  done
done

# What it was told to ignore when it was started, as nohup does, stays ignored.
for signal in HUP INT; do
  env --ignore-signal="$signal" "$executable" >"$log" 2>&1 &
  program=$!
  bench=$(window "SPHERICAL  LENSES")
  kill -s "$signal" "$program"
  sleep 0.3
  end
done
