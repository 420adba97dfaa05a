#!/usr/bin/env bash
# Which lines the tests reach: builds with counters, runs all tests but those that need window
# managers, and prints one line a folder. Ends with status 1 where a folder falls short: 99 of 100
# lines for optics and the half of the canvas that knows no toolkit, 95 for screens and canvas/qt.
# Each line that nothing reaches is listed in build/coverage/lines.txt.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source packaging/setup.sh

require_packages "${build_packages[@]}" "${virtual_display_packages[@]}" "${test_packages[@]}" gcovr
build_preset coverage
find build/coverage -name '*.gcda' -delete
# A test that fails is another command's to tell; here it only reaches less.
ctest --preset coverage --no-tests=error --parallel "$(nproc)" >build/coverage/tests.log || true

# Prints what is reached of the files that match a pattern, and fails below a bar.
folder() {
  local least=$1 name=$2
  shift 2
  say "== $name, at least $least"
  gcovr --root . --object-directory build/coverage --exclude-throw-branches \
    --exclude-unreachable-branches --fail-under-line "$least" --print-summary "$@" \
    2>>build/coverage/gcovr.log | tee -a build/coverage/lines.txt | grep '^lines'
}

: >build/coverage/lines.txt
short=0
folder 99 "optics" --filter 'optics/' || short=1
folder 99 "canvas without toolkit" --filter 'canvas/[^/]*$' || short=1
folder 95 "screens" --filter 'screens/' || short=1
folder 95 "canvas/qt" --filter 'canvas/qt/' || short=1
exit "$short"
