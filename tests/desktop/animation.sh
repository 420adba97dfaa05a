# Both animations move, leave the last two fronts standing, and can be ended in mid-run.
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"
begin
open_diaphragm "$bench" -120 130

menu "$bench" 4
sleep 1
snapshot "$scratch/plane_1.png" "$bench"
sleep 0.5
snapshot "$scratch/plane_2.png" "$bench"
expect_different plane_1 plane_2
expect_some plane_1 "$ray_in_air" 100

menu "$bench" 5
sleep 1
snapshot "$scratch/point_1.png" "$bench"
sleep 0.5
snapshot "$scratch/point_2.png" "$bench"
expect_different point_1 point_2
settle 60
shot rest_1
sleep 1
shot rest_2
expect_same rest_1 rest_2

menu "$bench" 4
sleep 0.5
end
