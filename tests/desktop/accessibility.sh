# The program as screen readers meet it: names, values and descriptions over the accessibility bus.
if [[ -z ${ACCESSIBILITY_BUS-} ]]; then
  exec env ACCESSIBILITY_BUS=1 dbus-run-session -- bash "${BASH_SOURCE[0]}" "$@"
fi
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"

# Where the buses put their sockets.
export XDG_RUNTIME_DIR=$scratch/runtime
mkdir -m 700 "$XDG_RUNTIME_DIR"
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 NO_AT_BRIDGE=1
# The bus is there before the program looks for it.
dbus-send --session --print-reply --dest=org.a11y.Bus /org/a11y/bus org.a11y.Bus.GetAddress \
  >"$scratch/bus"
begin
/usr/bin/python3 -B "$(dirname "${BASH_SOURCE[0]}")/accessibility.py"
expect_end 0
