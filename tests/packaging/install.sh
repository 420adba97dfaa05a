# An installation holds all that a desktop needs of the program, each part valid, and starts:
# install.sh BUILD.
build=$1
source "$(dirname "${BASH_SOURCE[0]}")/../desktop/desktop.sh"

prefix=$scratch/usr
share=$prefix/share
cmake --install "$build" --prefix "$prefix" >"$log" || fail "no installation"
executable=$prefix/bin/lensbench

entry=$share/applications/lensbench.desktop
desktop-file-validate "$entry" >"$log" || fail "menu entry"
grep -qE '^Categories=Education;Science;' "$entry" || fail "not under Education and Science"
if [[ $(sed -n 's/^Exec=//p' "$entry") != lensbench ]]; then fail "the menu starts something else"; fi
icon=$(sed -n 's/^Icon=//p' "$entry")

metainfo=$share/metainfo/org.lensbench.lensbench.metainfo.xml
appstreamcli validate --no-net --no-color "$metainfo" >"$log" 2>&1 || fail "metainfo"
grep -qF '<launchable type="desktop-id">lensbench.desktop</launchable>' "$metainfo" ||
  fail "the metainfo names another menu entry"

if [[ ! -s $share/icons/hicolor/scalable/apps/$icon.svg ]]; then fail "no drawn icon"; fi
for size in 16 22 24 32 48 64 128 256; do
  found=$(identify -format '%wx%h' "$share/icons/hicolor/${size}x$size/apps/$icon.png")
  if [[ $found != "${size}x$size" ]]; then fail "icon of $size is $found"; fi
done

for page in man/man1 man/el/man1; do
  gzip -dc "$share/$page/lensbench.1.gz" >"$scratch/page"
  groff -ww -man -K utf8 -T utf8 "$scratch/page" >/dev/null 2>"$log"
  if [[ -s $log ]]; then fail "manual page in $page"; fi
done

# All that name a version name the one that was built.
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
grep -qF "\"Lens Bench $version\"" "$scratch/page" || fail "manual page of another version"
grep -qF "<release version=\"$version\"" "$metainfo" || fail "metainfo of another version"
gzip -dc "$share/doc/lensbench/changelog.Debian.gz" | grep -qF "lensbench ($version-" ||
  fail "package of another version"
for page in copyright changelog.gz physics.md; do
  if [[ ! -s $share/doc/lensbench/$page ]]; then fail "no $page"; fi
done

begin
end
