#!/usr/bin/env bash
# The binary interface is the recorded one: the names of the exported functions on every platform, and
# on 64-bit Linux their types as well. `abi.sh --record` writes the records anew.
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

need_tools abidw=abigail-tools
need_packages "g++-$(g++ -dumpversion)-multilib" g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix googletest
# The types are read from the description for debuggers, without which the library is the same.
alone_in abi
cmake --preset release -B build/abi -D CMAKE_CXX_FLAGS=-g -D ZEPH_BUILD_TESTS=OFF -D ZEPH_BUILD_BENCH=OFF \
  -D ZEPH_BUILD_EXAMPLES=OFF
cmake --build build/abi --target zeph
described=build/abi/libzeph.abi
abidw --no-corpus-path --no-comp-dir-path --no-show-locs --no-load-undefined-interfaces \
  --headers-dir include --drop-private-types --out-file "$described" build/abi/src/libzeph.so

for preset in release m32 mingw64 mingw32; do
  build_library "$preset"
done
elf_names() {
  nm -D --defined-only "$1" | awk '$2 == "T" { print $3 }' | sed 's/@.*//' | sort
}
# In 32 bits Windows puts an underscore in front of each name; objdump shows it only there.
dll_names() {
  dll_exports "$@" | sort
}
elf_names build/release/src/libzeph.so >build/abi/linux-x86_64.txt
elf_names build/m32/src/libzeph.so >build/abi/linux-x86.txt
dll_names x86_64-w64-mingw32-objdump build/mingw64/src/libzeph.dll >build/abi/windows-x86_64.txt
dll_names i686-w64-mingw32-objdump build/mingw32/src/libzeph.dll >build/abi/windows-x86.txt

if [ "${1-}" = --record ]; then
  cp "$described" build/abi/*.txt abi/
  exit
fi
for names in abi/*.txt; do
  diff "$names" "build/abi/$(basename "$names")" || fail "the exports (>) are not those of $names (<)"
  echo "$names: $(wc -l <"$names") names, all there and no others"
done
abidiff --no-show-locs abi/libzeph.abi "$described" || fail "the types of the interface have changed"
echo "abi/libzeph.abi: no change"
