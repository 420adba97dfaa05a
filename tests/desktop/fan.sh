# Shift and the left button send a fan through the lens; a plain press takes it away, and the right
# button does nothing at all.
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"
begin
open_diaphragm "$bench" -120 130
shot scene
expect_some scene "$glass" 1000
expect_none scene "$ray_in_glass"

shift_click "$bench" $(at_bench "$bench" -300 0)
shot fan
expect_some fan "$ray_in_air" 5000
expect_some fan "$ray_in_glass" 500

move "$bench" $(at_bench "$bench" -300 100)
xdotool click 3
xdotool keydown shift click 3 keyup shift
shot right_button
expect_same fan right_button

click "$bench" $(at_bench "$bench" -300 0)
shot plain_press
expect_none plain_press "$ray_in_glass"
end
