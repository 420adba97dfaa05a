#!/usr/bin/env bash
# The program is built so that a slip in memory is of no use to anyone: hardening.sh PROGRAM
# COMPILE-DATABASE, which are read for what each of them can show.
set -euo pipefail
program=$1
database=$2

fail() {
  echo "FAILED: $*" >&2
  exit 1
}

# expect WHAT PATTERN: the ELF has a line like that.
elf=$(readelf --wide --file-header --program-headers --dynamic --dyn-syms "$program")
expect() { grep -qE "$2" <<<"$elf" || fail "$program: no $1"; }
expect "position-independent file" '^ +Type: +DYN '
expect "position-independent executable" '\(FLAGS_1\).* PIE'
expect "read-only relocations" '^ +GNU_RELRO '
expect "immediate binding" '\(FLAGS_1\).* NOW'
expect "stack that holds no code" '^ +GNU_STACK .* RW '
expect "stack protector" '__stack_chk_fail'
if grep -qE '^ +LOAD .* (RWE|WE) ' <<<"$elf"; then fail "$program: memory both written and run"; fi

# Every file of the tree, whatever target it belongs to.
commands=$(grep -E '"command": ' "$database" | grep -vF 'cmake_pch')
files=$(wc -l <<<"$commands")
expect_all() {
  local found
  found=$(grep -cF -e " $1 " <<<"$commands") || true
  if ((found != files)); then fail "$((files - found)) of $files files are compiled without $1"; fi
}
# Two compilers know it on these processors; on others it depends on the compiler.
case $(uname -m) in
  x86_64 | i?86 | s390x | ppc64le) expect_all -fstack-clash-protection ;;
esac
expect_all -fstack-protector-strong
expect_all -fPIE
if grep -qE -- ' -O[123] ' <<<"$commands" && ! grep -qF -- ' -fsanitize=address' <<<"$commands"; then
  expect_all -D_FORTIFY_SOURCE=3
  expect "checked calls of the C library" '__[a-z]+_chk@'
fi
