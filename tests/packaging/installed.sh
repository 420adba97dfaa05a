#!/usr/bin/env bash
# The package on a system that has nothing of the program's: installs it, starts it, works it and
# takes it away again, as root: installed.sh PACKAGE.
set -euo pipefail
package=$(realpath "$1")
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
source packaging/setup.sh

refuse() {
  say "FAILED: $*"
  exit 1
}

# What is no longer needed is taken away at the end, which is not to be done to a system in use.
for tool in lensbench g++; do
  if command -v "$tool" >/dev/null; then refuse "not a bare system: there is $tool"; fi
done
require_packages "${virtual_display_packages[@]}"
before=$(dpkg-query --show)

apt-get -q update
DEBIAN_FRONTEND=noninteractive apt-get -q install -y --no-install-recommends "$package"
if command -v g++ >/dev/null; then refuse "the package brought a compiler"; fi
mapfile -t files < <(dpkg-query --listfiles lensbench)

# Started as a person does, by name, and through all screens.
packaging/tour.sh "$(command -v lensbench)" "$(mktemp -d)"

DEBIAN_FRONTEND=noninteractive apt-get -q purge -y lensbench
DEBIAN_FRONTEND=noninteractive apt-get -q autoremove --purge -y
for file in "${files[@]}"; do
  if [[ -e $file && ! -d $file ]]; then refuse "left behind: $file"; fi
done
if [[ $(dpkg-query --show) != "$before" ]]; then
  refuse "packages differ: $(diff <(echo "$before") <(dpkg-query --show))"
fi
say "installed, started and removed"
