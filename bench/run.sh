#!/usr/bin/env bash
# Runs all benchmarks, the screens both without a display and on X11 (a virtual one), and prints what
# they found as tables: each scene in ms, its bare reference and the ratio (medians; wants an idle
# machine), and below it what memory the program holds, in MiB, and an empty window of the same size.
# Arguments go to each benchmark, such as --benchmark_filter=fan.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source packaging/setup.sh
source packaging/display.sh

require_packages "${build_packages[@]}" "${virtual_display_packages[@]}" libgtest-dev libgmock-dev \
  librapidcheck-dev libbenchmark-dev python3
build_preset test >&2
export LC_ALL=C.UTF-8
folder=build/test/bench
results=build/bench
mkdir -p "$results"
rm -f "$results"/*.json

# Leaves the figures of one benchmark in a file of its own.
measure() {
  local platform=$1 name=$2 file=$results/$1-$2${DISPLAY_HEIGHT:+-$DISPLAY_HEIGHT}.json
  shift 2
  say "== $name, $platform"
  # The benchmarks choose the offscreen platform themselves.
  if [[ $platform == xcb ]]; then export QT_QPA_PLATFORM=xcb; fi
  "$folder/bench_$name" --benchmark_out_format=json --benchmark_out="$file" "$@" >&2
}

for name in poreiaaktinon protosfakos canvas screens start memory; do
  measure offscreen "$name" "$@"
done
trap stop_display EXIT
start_display 3840x2160
for name in screens start; do measure xcb "$name" "$@"; done
# Memory is measured in windows as large as the display.
for size in 1920x1080 3840x2160 7680x4320; do
  stop_display
  start_display "$size"
  DISPLAY_HEIGHT=${size#*x} measure xcb memory "--benchmark_filter=/${size#*x}" "$@"
done
bench/table.py "$results"/*.json
