#!/usr/bin/env bash
# Runs the tests and the example host of the 64-bit Windows build under Wine.
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

need_packages wine wine64 || skip "Wine cannot be installed here"
# A Wine of its own, without the parts that would ask for a download.
export WINEPREFIX=$root/build/wine WINEARCH=win64 WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
mkdir -p "$WINEPREFIX"
wine cmd /c exit || skip "Wine does not start here"

need_packages g++-mingw-w64-x86-64-posix googletest
build_all mingw64
compiler=x86_64-w64-mingw32-g++-posix
WINEPATH=$root/build/mingw64/src
for library in libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll; do
  WINEPATH+=";$(dirname "$($compiler -print-file-name=$library)")"
done
export WINEPATH

# Directly, without ctest: a Wine process for each test would take seconds every time.
for program in build/mingw64/tests/*_tests.exe; do
  wine "$program" --gtest_brief=1
done
wine build/mingw64/tools/zeph_golden.exe tests/golden.txt
example=examples/equipment_log
cmake -D HOST="wine;$root/build/mingw64/$example.exe" -D SOURCE="$root/$example" \
  -P "$example/check_host.cmake"
