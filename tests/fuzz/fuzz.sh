#!/usr/bin/env bash
# Builds the fuzz targets and gives each of them so many random inputs (first argument, 20,000
# unless told otherwise), starting from its corpus. What breaks a law is left in build/fuzz. With a
# second argument the corpora grow by what reached something new.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
source packaging/setup.sh

inputs=${1:-20000}
require_packages "${build_packages[@]}" clang libclang-rt-dev llvm
build_preset fuzz

work() {
  local target=$1 grow=$2
  local corpus=$PWD/tests/fuzz/corpus/$target found=build/fuzz/found/$target
  mkdir -p "$found"
  "build/fuzz/tests/fuzz/fuzz_$target" -runs="$inputs" -seed=1 -max_len=512 -timeout=10 \
    -artifact_prefix=build/fuzz/ -print_final_stats=1 -verbosity=0 "$found" "$corpus"
  if ((grow)); then
    "build/fuzz/tests/fuzz/fuzz_$target" -merge=1 -verbosity=0 "$corpus" "$found"
  fi
}

# All at a time, each with its words in a file until it is done.
declare -A started
for target in light poreiaaktinon protosfakos numbers; do
  work "$target" $(($# > 1)) >"build/fuzz/$target.log" 2>&1 &
  started[$target]=$!
done
status=0
for target in "${!started[@]}"; do
  wait "${started[$target]}" || status=1
  say "== $target"
  cat "build/fuzz/$target.log"
done
exit "$status"
