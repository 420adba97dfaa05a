#!/usr/bin/env bash
# Random input for as long as one likes: does the runs FIRST to LAST, each of 1000 actions on a
# program just started, with its number for a seed. What each must keep to stands in MonkeyTest.cpp.
#
#   tests/monkey/monkey.sh FIRST LAST [PRESET]
#
# A run that went well is a line of build/PRESET/monkey/results.tsv (run, actions, how many of them
# ended the program as they are known to, digest of the actions, resident memory in MiB) and is not
# done again; without the file all are. One that did not leaves its actions in run-N.txt beside it,
# the last of them the one that went wrong. JOBS tells how many go on at a time.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
source packaging/setup.sh

if (($# < 2)); then
  say "tests/monkey/monkey.sh FIRST LAST [PRESET]"
  exit 2
fi
first=$1 last=$2 preset=${3:-test}
# Now and then a run waits for its windows.
jobs=${JOBS:-$(($(nproc) + 1))}
folder=build/$preset/monkey
require_packages "${build_packages[@]}" "${test_packages[@]}"
build_preset "$preset" --target monkey
mkdir -p "$folder"
rm -f "$folder"/run-*.txt

status=0
started=()
for ((job = 0; job < jobs; ++job)); do
  QT_QPA_PLATFORM=offscreen "build/$preset/tests/monkey/monkey" "$folder" $((first + job)) "$last" \
    "$jobs" &
  started+=($!)
done
for job in "${started[@]}"; do wait "$job" || status=1; done

touch "$folder/results.tsv"
awk -F '\t' -v first="$first" -v last="$last" '
  $1 < first || $1 > last { next }
  { ++runs; actions += $2; ended += $3 }
  runs == 1 || $5 < least { least = $5 }
  $5 > most { most = $5 }
  END {
    printf "%d of the runs %d to %d went well: %d actions, of which %d ended the program as they are known to; resident memory %d to %d MiB\n",
      runs, first, last, actions, ended, least, most
  }' "$folder/results.tsv"
for actions in "$folder"/run-*.txt; do
  if [[ -e $actions ]]; then say "$actions ends with: $(tail -n 1 "$actions")"; fi
done
exit "$status"
