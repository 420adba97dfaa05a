# From screen to screen and back: pictures and values survive, bit by bit.
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"
begin
open_diaphragm "$bench" -120 130
shift_click "$bench" $(at_bench "$bench" -260 50)
move "$bench" $(at_bench "$bench" 300 200)
shot before

menu "$bench" 1
ray=$(window "ΜΙΑ ΑΚΤΙΝΑ")
no_window "SPHERICAL  LENSES"
shot one_ray "$ray"
expect_some one_ray 'rgb(0,255,0)' 500
drag "$ray" $(at_ray "$ray" -170 90) $(at_ray "$ray" -20 50)
shot aimed "$ray"
expect_some aimed "$ray_in_air" 300
click "$ray" 324 24
bench=$(window "SPHERICAL  LENSES")
no_window "ΜΙΑ ΑΚΤΙΝΑ"
move "$bench" $(at_bench "$bench" 300 200)
shot after
expect_same before after

# The second visit has the scale of the first: the same aim gives the same picture.
menu "$bench" 1
ray=$(window "ΜΙΑ ΑΚΤΙΝΑ")
drag "$ray" $(at_ray "$ray" -170 90) $(at_ray "$ray" -20 50)
shot aimed_again "$ray"
expect_same aimed aimed_again
click "$ray" 324 24
bench=$(window "SPHERICAL  LENSES")

menu "$bench" 3
choice=$(window "CHOOSE  LENS")
window "SPHERICAL  LENSES" >/dev/null
click "$choice" 382 68
no_window "CHOOSE  LENS"
bench=$(window "SPHERICAL  LENSES")
activate "$bench"
move "$bench" $(at_bench "$bench" 300 200)
shot after_menu
expect_same before after_menu
end
