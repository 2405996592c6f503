#!/usr/bin/env bash
# The protections of the built libraries, read off the files; and the same bytes from a build in
# another folder.
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

need_tools python3=python3 readelf=binutils clang++=clang
need_packages g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix googletest
for preset in release clang mingw64 mingw32; do
  build_library "$preset"
done
python3 tools/check_binary.py build/release/src/libzeph.so build/clang/src/libzeph.so \
  build/mingw64/src/libzeph.dll build/mingw32/src/libzeph.dll

# A copy of the sources at a path of another length.
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/a copy"
tracked . | tar -c -T - | tar -x -C "$work/a copy"
(
  cd "$work/a copy"
  cmake --preset release -D ZEPH_BUILD_TESTS=OFF -D ZEPH_BUILD_BENCH=OFF -D ZEPH_BUILD_EXAMPLES=OFF
  cmake --build build/release
) >"$work/log" || { tail -n 20 "$work/log"; fail "the copy does not build"; }
cmp build/release/src/libzeph.so "$work/a copy/build/release/src/libzeph.so" ||
  fail "a build in another folder gives other bytes"
echo "reproducible: $(sha256sum <build/release/src/libzeph.so | cut -c1-64)"
