#!/usr/bin/env bash
# Makes the Debian package and has it checked: packaging/package.sh [DIR]. The package lies in DIR,
# build/package if none is given; its name is printed.
set -euo pipefail
target=$(realpath -m "${1-build/package}")
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source packaging/setup.sh

require_packages "${build_packages[@]}" "${package_packages[@]}"
# Anew, for a build that was set up before these tools were there would do without them.
cmake --preset release >&2
build_preset release >&2
rm -rf "$target"
cpack --config build/release/CPackConfig.cmake -B "$target" >&2
package=$(echo "$target"/lensbench_*.deb)

depends=$(dpkg-deb --field "$package" Depends)
for needed in fonts-liberation libqt6widgets6 libqt6svg6 libqt6printsupport6; do
  if [[ $depends != *"$needed"* ]]; then
    say "The package does not depend on $needed: $depends"
    exit 1
  fi
done
lintian --fail-on error "$package" >&2
echo "$package"
