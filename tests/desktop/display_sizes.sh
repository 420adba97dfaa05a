# The workbench fills displays from small to large, its lens in the middle and uncovered.
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"
for display in 1024x600 1366x768 1920x1080; do
  begin "$display"
  read -r width height < <(size "$bench")
  if ((width != ${display%x*})); then fail "on $display the workbench is $width pixels wide"; fi
  if ((height > ${display#*x} || height < ${display#*x} - 60)); then
    fail "on $display the workbench is $height pixels high"
  fi
  # A point of the glass on the axis, right of the closed blades and clear of the marks on the axis.
  read -r x y < <(at_bench "$bench" 25 30)
  shot "$display"
  found=$(convert "$scratch/$display.png" -format "%[pixel:p{$x,$y}]" info:)
  if [[ $found != *"(220,220,195)"* ]]; then fail "on $display there is $found where glass should be"; fi
  end
  stop_display
done
