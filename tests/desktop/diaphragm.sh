# The blades are drawn apart with the pointer; closed ones let no ray into the lens from off the axis.
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"
begin
drag "$bench" $(at_bench "$bench" 0 100) $(at_bench "$bench" -120 0)
shift_click "$bench" $(at_bench "$bench" -300 30)
shot closed
expect_none closed "$ray_in_glass"
expect_some closed "$ray_in_air" 2000

drag "$bench" $(at_bench "$bench" -120 100) $(at_bench "$bench" -120 60)
drag "$bench" $(at_bench "$bench" -120 -100) $(at_bench "$bench" -120 -60)
shift_click "$bench" $(at_bench "$bench" -300 30)
shot open
expect_some open "$ray_in_glass" 500
end
