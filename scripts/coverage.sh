#!/usr/bin/env bash
# Runs all tests with coverage counters, in a wide and in a portable build, and prints what of src/
# they ran: lines, branches and, for information, independent conditions (MC/DC). Ends with 1 if a
# line or a branch was not run that tests/uncovered.txt does not list, or if a listed one was.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/lib.sh
. scripts/lib.sh

need_tools cmake=cmake ninja=ninja-build clang++-19=clang-19 llvm-cov-19=llvm-19
need_packages libclang-rt-19-dev libgtest-dev locales

# measure PRESET: build/PRESET/coverage.json holds what its tests ran.
measure() {
  local build=build/$1 program profiles=() show
  cmake --preset "$1" >/dev/null
  cmake --build "$build" >"$build/build.log" || { tail -n 40 "$build/build.log"; return 1; }
  for program in tests core_tests host_tests; do
    profiles+=("$build/$program.profraw")
    (cd "$build/tests" && LLVM_PROFILE_FILE=../$program.profraw "./zeph_$program" --gtest_brief=1)
  done
  profiles+=("$build/golden.profraw")
  LLVM_PROFILE_FILE=$build/golden.profraw "$build/tools/zeph_golden" tests/golden.txt
  llvm-profdata-19 merge -sparse "${profiles[@]}" -o "$build/tests.profdata"
  show=(llvm-cov-19 export -instr-profile "$build/tests.profdata" "$build/src/libzeph.so"
    -object "$build/tests/zeph_core_tests" -sources src)
  "${show[@]}" >"$build/coverage.json"
  "${show[@]}" -format lcov >"$build/coverage.lcov"
}

measure coverage
measure coverage-portable
python3 tools/coverage.py build/coverage/coverage build/coverage-portable/coverage
