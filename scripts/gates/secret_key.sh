#!/usr/bin/env bash
# With the processor's AES instructions no load and no branch depends on the key: valgrind follows its
# bytes through expansion, sealing and opening.
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

need_packages valgrind
build_library release
grep -qw aes /proc/cpuinfo || skip "this processor has no AES instructions"
mkdir -p build/secret_key
g++ -std=c++17 -O1 -g -Iinclude tests/cipher/secret_key.cpp -Lbuild/release/src -lzeph \
  -o build/secret_key/secret_key
check() {
  LD_LIBRARY_PATH=build/$1/src valgrind -q --error-exitcode=9 build/secret_key/secret_key
}
check release
echo "no load and no branch depends on the key"

# The check itself: the portable way looks bytes up in tables, and must be found.
build_library portable
! check portable >build/secret_key/portable.log 2>&1 ||
  fail "valgrind does not notice the tables of the portable way"
grep -q 'uninitialised' build/secret_key/portable.log || fail "the portable way fails for another reason"
echo "noticed in the portable way"
