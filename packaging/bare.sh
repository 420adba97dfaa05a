#!/usr/bin/env bash
# Proves the commands of this tree on a system that has nothing but its base, as root:
#   packaging/bare.sh RELEASE [run|test|package]...    all three if none is named
# RELEASE is any that debootstrap knows (bookworm, trixie, ...). The committed tree is taken.
#   run      ./run, whose pictures are left in build/bare/RELEASE-run
#   test     ./test
#   package  makes the package on one system; installs, starts and removes it on another
# BARE_MIRROR names another archive, for releases that the usual one does not have. The base of a
# release is kept in build/bare and used again; take that folder away to begin anew. How many jobs a
# build has can be set with CMAKE_BUILD_PARALLEL_LEVEL.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source packaging/setup.sh

release=${1:?"packaging/bare.sh RELEASE [run|test|package]..."}
tasks=("${@:2}")
if ((${#tasks[@]} == 0)); then tasks=(run test package); fi
folder=$PWD/build/bare
base=$folder/$release.base

if ((EUID != 0)); then
  say "Only root can make a system within a system."
  exit 1
fi
require_packages debootstrap util-linux git
mkdir -p "$folder"
if [[ ! -e $base/complete ]]; then
  rm -rf "$base"
  debootstrap --variant=minbase "$release" "$base" "${BARE_MIRROR-http://deb.debian.org/debian}" \
    >"$folder/$release.log" 2>&1 || {
    tail -n 20 "$folder/$release.log" >&2
    exit 1
  }
  touch "$base/complete"
fi

# fresh NAME: a system with its base and this tree, in `system`.
fresh() {
  system=$folder/$release-$1.system
  rm -rf --one-file-system "$system"
  cp -a "$base" "$system"
  cp /etc/resolv.conf /etc/hosts "$system/etc/"
  mkdir "$system/lens-bench"
  git archive HEAD | tar -x -C "$system/lens-bench"
}

# inside COMMAND: runs it in that system with an environment of its own; whatever it starts and
# mounts is gone when it ends.
inside() {
  # shellcheck disable=SC2016  # for the inner shell
  unshare --mount --pid --fork --kill-child bash -c '
    mount -t proc proc "$1/proc"
    mount --rbind /dev "$1/dev"
    mount -t tmpfs -o mode=1777 tmpfs "$1/dev/shm"
    exec chroot "$1" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 \
      CMAKE_BUILD_PARALLEL_LEVEL="$3" bash -c "cd /lens-bench && $2"
  ' - "$system" "$1" "${CMAKE_BUILD_PARALLEL_LEVEL-$(nproc)}" </dev/null
}

prove_run() {
  inside "./run"
  rm -rf "$folder/$release-run"
  cp -r "$system/lens-bench/build/pictures" "$folder/$release-run"
  if [[ -z $(find "$folder/$release-run" -name '*.png' -size +0) ]]; then
    say "./run left no pictures"
    exit 1
  fi
}
prove_test() { inside "./test"; }
prove_package() {
  local package
  inside "packaging/package.sh"
  package=$(echo "$system"/lens-bench/build/package/lensbench_*.deb)
  cp "$package" "$folder/"
  fresh installed
  cp "$package" "$system/lens-bench/lensbench.deb"
  inside "tests/packaging/installed.sh lensbench.deb"
  rm -rf --one-file-system "$system"
}

for task in "${tasks[@]}"; do
  say "== $release: $task"
  fresh "$task"
  "prove_$task" >"$folder/$release-$task.log" 2>&1 || {
    tail -n 60 "$folder/$release-$task.log" >&2
    say "== $release: $task failed; all of it in $folder/$release-$task.log, its system beside it"
    exit 1
  }
  rm -rf --one-file-system "$folder/$release-$task.system"
  say "== $release: $task passed ($((SECONDS / 60)) min)"
done
