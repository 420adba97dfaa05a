# While nobody prints, the program opens no network socket, only local ones, and writes no file but
# the picture that a person saves and the toolkit's font cache. Traced through all four screens.
# shellcheck disable=SC2046
source "$(dirname "${BASH_SOURCE[0]}")/../desktop/desktop.sh"

# A home in which nothing has been started before, so that whatever is kept is kept now.
home=$scratch/home
mkdir -p "$home/tmp"
mkdir -m 700 "$home/run"

creating="?creat,?mkdir,mkdirat,?mknod,mknodat,?link,linkat,?symlink,symlinkat"
changing="?rename,renameat,?renameat2,?unlink,unlinkat,?rmdir,truncate,?chmod,fchmodat,?chown,fchownat"

start_display 1366x768
# Daemonized is the tracer, so that the program itself is the child here.
env -u XDG_CONFIG_HOME -u XDG_CACHE_HOME -u XDG_DATA_HOME -u XDG_STATE_HOME \
  HOME="$home" TMPDIR="$home/tmp" XDG_RUNTIME_DIR="$home/run" \
  strace --daemonize --follow-forks --output-separately --output="$scratch/trace" \
  --trace="socket,socketpair,connect,bind,?open,openat,?openat2,$creating,$changing" \
  "$executable" >"$log" 2>&1 &
program=$!
bench=$(window "SPHERICAL  LENSES")
settle

open_diaphragm "$bench" -120 130
shift_click "$bench" $(at_bench "$bench" -260 50)
menu "$bench" 2
answer "Lens Bench" 20
menu "$bench" 4
settle 10
menu "$bench" 1
ray=$(window "ΜΙΑ ΑΚΤΙΝΑ")
drag "$ray" $(at_ray "$ray" -170 90) $(at_ray "$ray" -20 50)
click "$ray" 324 24
no_window "ΜΙΑ ΑΚΤΙΝΑ"
menu "$bench" 3
click "$(window "CHOOSE  LENS")" 228 68
sahl=$(window "Ιμπν Σαχλ")
click "$sahl" $(at_sahl "$sahl" 100 -15)
menu "$sahl" 4
no_window "Ιμπν Σαχλ"
# The picture is written without a name beside its place, and moved there once it is whole.
saved=$home/picture.png
activate "$bench"
key ctrl+s
answer "Save the picture" "$saved"
no_window "Save the picture"
end
[[ -s $saved ]] || fail "no picture was saved"
for ((tries = 0; tries < 200; ++tries)); do
  if grep -q '+++ exited with 0 +++' "$scratch"/trace.*; then break; fi
  sleep 0.05
done
# One file for each thread.
trace=$(cat "$scratch"/trace.*)
grep -qF '+++ exited with 0 +++' <<<"$trace" || fail "the trace has no end"

# expect_no WHAT LINES: none, and nothing but what the exceptions take out.
expect_no() {
  if [[ -n $2 ]]; then fail "$1: $2"; fi
}
grep -q '^connect(.*sa_family=AF_UNIX' <<<"$trace" || fail "the trace misses the display"
grep -q '^openat(.*O_RDONLY' <<<"$trace" || fail "the trace misses files"

# To try is as bad as to do, save for what only asks whether a folder is there.
sockets='^(socket|socketpair|connect|bind)\('
opened='^(open|openat|openat2)\('
expect_no "sockets that are not local" \
  "$(grep -E "$sockets" <<<"$trace" | grep -v AF_UNIX || true)"
expect_no "files that were written" "$(
  grep -E "$opened" <<<"$trace" | grep -E 'O_WRONLY|O_RDWR|O_CREAT|O_TRUNC' |
    grep -vE '"/dev/[a-z/]+"' | grep -vF -e "\"$home/.cache/fontconfig/" -e "\"$saved" \
      -e "\"$home\", O_RDWR|O_CLOEXEC|O_TMPFILE" || true
)"
expect_no "files that were made, moved or taken away" "$(
  grep -E '^[a-z0-9]+\(' <<<"$trace" | grep -vE "$sockets|$opened| = -1 E" |
    grep -vF -e "\"$home/.cache/" -e "\"$saved" || true
)"
expect_no "what is left at home" \
  "$(find "$home" ! -type d ! -path "$home/.cache/fontconfig/*" ! -path "$saved")"
