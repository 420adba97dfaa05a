# The Ibn Sahl screen: its scene, a source placed by the pointer, the options, the diaphragm's edges.
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"
begin
menu "$bench" 3
choice=$(window "CHOOSE  LENS")
click "$choice" 228 68
sahl=$(window "Ιμπν Σαχλ")
shot opened "$sahl"
expect_some opened 'rgb(0,255,255)' 200
expect_some opened "$ray_in_air" 200

click "$sahl" $(at_sahl "$sahl" -18 0)
shot at_focus "$sahl"
expect_different opened at_focus

# "ONLY WAVES" leaves out every ray.
click "$sahl" 56 $((menu_bar + 12))
click "$sahl" $(at_sahl "$sahl" -18 0)
shot only_waves "$sahl"
expect_none only_waves 'rgb(0,255,255)'
expect_some only_waves "$ray_in_glass" 1000

# Both edges follow the one that is dragged.
move "$sahl" $(at_sahl "$sahl" 130 60)
drag "$sahl" $(at_sahl "$sahl" 130 60) $(at_sahl "$sahl" 100 20)
shot dragged "$sahl"
expect_different only_waves dragged

menu "$sahl" 4
no_window "Ιμπν Σαχλ"
click "$choice" 82 68
sahl=$(window "Ιμπν Σαχλ")
menu "$sahl" 2
expect_end 0
