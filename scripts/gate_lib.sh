# shellcheck shell=bash
# What the gates share. Each script in scripts/gates/ sources this file, stands in the project's
# root from then on, and ends with 0 (passed), 77 (skipped, through skip) or anything else (failed).
set -euo pipefail
export LC_ALL=C
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
# shellcheck source=scripts/lib.sh
. scripts/lib.sh

skip() {
  echo "skipped: $*"
  exit 77
}

fail() {
  echo "failed: $*" >&2
  exit 1
}

# Gates may run side by side, but not two in one build folder: the second one waits here for the
# first one's end.
held=" "
alone_in() {
  local lock
  [[ $held != *" $1 "* ]] || return 0
  mkdir -p build/locks
  exec {lock}>"build/locks/$1"
  flock "$lock"
  held+="$1 "
}

# Each of these works in build/PRESET, without the benchmarks.
configure() {
  alone_in "$1"
  need_tools cmake=cmake ninja=ninja-build g++=g++
  need_packages libgtest-dev locales
  cmake --preset "$1" -D ZEPH_BUILD_BENCH=OFF
}

build_library() {
  configure "$1"
  cmake --build "build/$1" --target zeph
}

build_all() {
  configure "$1"
  cmake --build "build/$1"
}

# build_and_test PRESET [EMULATOR...]: the tests, and the digest of the golden table.
build_and_test() {
  build_all "$1"
  ctest --test-dir "build/$1" -j "$(nproc)" --output-on-failure --no-tests=error
  "${@:2}" "build/$1/tools/zeph_golden" tests/golden.txt
}

# The tracked files of the given patterns.
tracked() {
  git -c safe.directory="$root" ls-files -- "$@"
}

# The names of the functions that the header declares, one a declaration, sorted.
declared_functions() {
  sed -e 's,//.*,,' -e '/^#/d' include/zeph.h | tr '\n' ' ' | grep -o 'ZEPH_API [^;]*;' |
    sed 's/^[^(]*[ *&]\(Zeph_[A-Za-z0-9_]*\)(.*/\1/' | sort
}

# Reads mangled symbols and compares them with the header: every declared function is there, one
# symbol a declaration, and nothing else.
check_exports() {
  local declared exported
  declared=$(declared_functions)
  exported=$(c++filt | sed 's/^Orbane::\(Zeph_[A-Za-z0-9_]*\)\(\[abi:cxx11\]\)\{0,1\}(.*/\1/' | sort)
  diff <(echo "$declared") <(echo "$exported") ||
    fail "the exports (>) are not the declared functions (<)"
  echo "exports: $(wc -l <<<"$exported"), all declared in zeph.h"
}

# dll_exports OBJDUMP DLL: the names in the export table of a Windows library.
dll_exports() {
  "$1" -p "$2" | awk '/Ordinal\/Name Pointer/ { on = 1; next } /^$/ { on = 0 } on { print $NF }'
}
