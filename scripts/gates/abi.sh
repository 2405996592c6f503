#!/usr/bin/env bash
# The binary interface is the recorded one: the names of the exported functions on every platform, and
# on 64-bit Linux their types as well. `abi.sh --record` writes both records anew.
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

need_tools abidw=abigail-tools
need_packages "g++-$(g++ -dumpversion)-multilib" g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix googletest
# The types are read from the description for debuggers, without which the library is the same.
alone_in abi
cmake --preset release -B build/abi -D CMAKE_CXX_FLAGS=-g -D ZEPH_BUILD_TESTS=OFF -D ZEPH_BUILD_BENCH=OFF \
  -D ZEPH_BUILD_EXAMPLES=OFF
cmake --build build/abi --target zeph
described=build/abi/libzeph.abi
abidw --suppressions abi/libzeph.abignore --no-corpus-path --no-comp-dir-path --no-show-locs --no-elf-needed \
  --no-parameter-names --headers-dir include --drop-private-types --out-file "$described" \
  build/abi/src/libzeph.so

for preset in release m32 mingw64 mingw32; do
  build_library "$preset"
done
elf_names() {
  nm -D --defined-only "$1" | awk '$2 == "T" { print $3 }' | sed 's/@.*//' | sort
}
if [ "${1-}" = --record ]; then
  elf_names build/release/src/libzeph.so >abi/symbols.txt
  cp "$described" abi/
  exit
fi

# The names are the same everywhere: in 32 bits Windows puts an underscore in front of each, which its
# export table leaves out.
compare() {
  diff abi/symbols.txt - || fail "the exports of $1 (>) are not the recorded ones (<)"
  echo "$1: the $(wc -l <abi/symbols.txt) recorded names and no others"
}
for preset in release m32; do
  elf_names "build/$preset/src/libzeph.so" | compare "build/$preset/src/libzeph.so"
done
dll_exports x86_64-w64-mingw32-objdump build/mingw64/src/libzeph.dll | sort | compare "libzeph.dll, 64 bits"
dll_exports i686-w64-mingw32-objdump build/mingw32/src/libzeph.dll | sort | compare "libzeph.dll, 32 bits"
abidiff --no-show-locs abi/libzeph.abi "$described" || fail "the types of the interface have changed"
echo "abi/libzeph.abi: no change"
