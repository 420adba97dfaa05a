# shellcheck shell=bash
# A display in memory, as a rule with a window manager, on which the program can be shown to nobody.
# To be sourced; start_display sets DISPLAY, stop_display takes the display away again.

display_processes=()

stop_display() {
  local i
  for ((i = ${#display_processes[@]} - 1; i >= 0; --i)); do
    kill "${display_processes[i]}" 2>/dev/null || true
  done
  display_processes=()
}

# start_display WIDTHxHEIGHT [MANAGER]: with that window manager (openbox, icewm, xfwm4, or none); the
# server chooses a free display number itself, so that many can run side by side.
start_display() {
  local size=$1 manager=${2:-openbox} scratch number tries
  scratch=$(mktemp -d)
  touch "$scratch/number"
  Xvfb -displayfd 3 -screen 0 "${size}x24" -nolisten tcp -noreset \
    3>"$scratch/number" 2>"$scratch/server" &
  display_processes+=($!)
  for ((tries = 0; tries < 200; ++tries)); do
    if read -r number <"$scratch/number"; then break; fi
    if ! kill -0 "${display_processes[0]}" 2>/dev/null; then break; fi
    sleep 0.05
  done
  if [[ -z ${number-} ]]; then
    echo "The virtual display did not start:" >&2
    cat "$scratch/server" >&2
    exit 1
  fi
  export DISPLAY=:$number LC_ALL=C.UTF-8
  unset WAYLAND_DISPLAY QT_QPA_PLATFORM
  case $manager in
    openbox) openbox --sm-disable >"$scratch/manager" 2>&1 & ;;
    icewm) ICEWM_PRIVCFG=$scratch icewm --splash= >"$scratch/manager" 2>&1 & ;;
    xfwm4) dbus-run-session xfwm4 >"$scratch/manager" 2>&1 & ;;
    none)
      rm -r "$scratch"
      return
      ;;
  esac
  display_processes+=($!)
  # Only a running window manager answers this question.
  for ((tries = 0; tries < 200; ++tries)); do
    if xdotool get_desktop >/dev/null 2>&1; then
      rm -rf "$scratch"
      return
    fi
    sleep 0.05
  done
  echo "The window manager did not start:" >&2
  cat "$scratch/manager" >&2
  exit 1
}
