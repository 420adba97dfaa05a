# Everything by the mouse alone: no key but the Shift that a fan asks for.
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"
begin

# entry WINDOW X: the command of the menu bar that stands there.
entry() { click "$1" "$2" $((menu_bar / 2)); }
single_ray=45 bundle=139 ibn_sahl=250 waves_in_time=524 end_of_program=628

open_diaphragm "$bench" -120 130
shift_click "$bench" $(at_bench "$bench" -260 50)
move "$bench" $(at_bench "$bench" 300 200)
shot fan
expect_some fan "$ray_in_glass" 500
expect_some fan "$ray_in_air" 1000

# The edge of the left circle is drawn wider; the drag leaves the lens alone.
drag "$bench" $(at_bench "$bench" 50 0) $(at_bench "$bench" 80 0)
move "$bench" $(at_bench "$bench" 300 200)
shot radius
expect_none radius "$ray_in_glass"
expect_different fan radius

# A bundle at the angle that the box proposes.
entry "$bench" "$bundle"
box=$(window "Lens Bench")
read -r width height < <(size "$box")
shot box "$box"
click "$box" $((width - 130)) $((height - 22))
no_window "Lens Bench"
shot bundle
expect_some bundle "$ray_in_glass" 500

entry "$bench" "$waves_in_time"
sleep 1
snapshot "$scratch/waves_1.png" "$bench"
sleep 0.5
snapshot "$scratch/waves_2.png" "$bench"
expect_different waves_1 waves_2

entry "$bench" "$single_ray"
ray=$(window "ΜΙΑ ΑΚΤΙΝΑ")
shot ray_before "$ray"
drag "$ray" $(at_ray "$ray" -170 90) $(at_ray "$ray" -20 50)
shot ray_sent "$ray"
expect_different ray_before ray_sent
expect_some ray_sent "$ray_in_air" 300
click "$ray" 324 24
bench=$(window "SPHERICAL  LENSES")
no_window "ΜΙΑ ΑΚΤΙΝΑ"

entry "$bench" "$ibn_sahl"
choice=$(window "CHOOSE  LENS")
settle
click "$choice" 82 68
sahl=$(window "Ιμπν Σαχλ")
shot opened "$sahl"
click "$sahl" $(at_sahl "$sahl" 100 -15)
shot moved "$sahl"
expect_different opened moved
expect_some moved 'rgb(0,255,255)' 100
entry "$sahl" 250
no_window "Ιμπν Σαχλ"
click "$choice" 382 68
no_window "CHOOSE  LENS"
entry "$bench" "$end_of_program"
expect_end 0
