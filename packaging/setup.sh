# shellcheck shell=bash disable=SC2034
# What ./run, ./test and .ci/run share: the packages that they stand on, and building a preset.
# To be sourced from the root of the tree.

# Compiler, build tools, toolkit with vector pictures, and the faces that carry the Greek texts.
build_packages=(g++ cmake ninja-build qt6-base-dev qt6-svg-dev fonts-liberation)
# What a desktop with Wayland alone needs on top, and such a desktop that nobody sees.
wayland_packages=(qt6-wayland)
compositor_packages=(weston)
# A display that exists in memory only, a window manager on it, hands and a camera.
virtual_display_packages=(xvfb openbox xdotool imagemagick)
# The second row is another window manager, and what asks and tells windows and displays more than a
# hand can; the third is what screen readers stand on; the last two look into the program and its installation.
test_packages=(libgtest-dev libgmock-dev librapidcheck-dev libbenchmark-dev
  icewm wmctrl x11-utils x11-xserver-utils
  at-spi2-core dbus python3-pyatspi
  binutils strace
  desktop-file-utils appstream librsvg2-bin poppler-utils groff-base)
# llvm brings the symbolizer that the sanitizers' reports and suppressions need.
check_packages=(git clang libclang-rt-dev llvm clang-format clang-tidy shellcheck)
# What makes a package and finds fault with it.
package_packages=(dpkg-dev file librsvg2-bin lintian)

say() { printf '%s\n' "$*" >&2; }

# Prints those of the given Debian packages that are not installed.
missing_packages() {
  local package
  for package in "$@"; do
    if [[ $(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) != installed ]]; then
      printf '%s\n' "$package"
    fi
  done
}

# Installs what is missing of the given packages, and does nothing when nothing is. Only the
# Debian family can be helped; elsewhere the packages are named and the script ends with status 1.
require_packages() {
  if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
    say "This system has no apt-get. Please install what these Debian packages hold, then call again:"
    say "  $*"
    exit 1
  fi
  local missing
  mapfile -t missing < <(missing_packages "$@")
  if ((${#missing[@]} == 0)); then return 0; fi
  local as_root=()
  if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
      say "Neither root nor sudo at hand. Please have these packages installed, then call again:"
      say "  ${missing[*]}"
      exit 1
    fi
    as_root=(sudo)
  fi
  say "Installing ${missing[*]}"
  "${as_root[@]}" apt-get -q update
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get -q install -y --no-install-recommends "${missing[@]}"
}

# Brings build/<preset> up to date, or what further arguments of the build name in it; an unchanged
# tree costs one look of Ninja.
build_preset() {
  local preset=$1
  if [[ ! -e build/$preset/build.ninja ]]; then cmake --preset "$preset"; fi
  cmake --build --preset "$preset" "${@:2}"
}
