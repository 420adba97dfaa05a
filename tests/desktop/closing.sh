# No close box leaves a process without a window: three of them lead back, the workbench's ends.
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"
begin
close_box() {
  activate "$1"
  key alt+F4
}

menu "$bench" 1
close_box "$(window "ΜΙΑ ΑΚΤΙΝΑ")"
no_window "ΜΙΑ ΑΚΤΙΝΑ"
bench=$(window "SPHERICAL  LENSES")

menu "$bench" 3
choice=$(window "CHOOSE  LENS")
click "$choice" 228 68
close_box "$(window "Ιμπν Σαχλ")"
no_window "Ιμπν Σαχλ"
choice=$(window "CHOOSE  LENS")

close_box "$choice"
no_window "CHOOSE  LENS"
bench=$(window "SPHERICAL  LENSES")

close_box "$bench"
expect_end 0
