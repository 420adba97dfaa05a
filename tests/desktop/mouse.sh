# Everything by the mouse alone: no key is ever pressed but the Shift that a fan asks for.
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"
begin

# entry WINDOW X: a command in the menu bar, by its place.
entry() { click "$1" "$2" $((menu_bar / 2)); }
