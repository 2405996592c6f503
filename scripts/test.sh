#!/usr/bin/env bash
# Builds the library and its tests in build/test and runs the tests.
# What is missing for that (cmake, ninja-build, g++, libgtest-dev, locales) is installed first.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# shellcheck source=scripts/lib.sh
. "$root/scripts/lib.sh"

need_tools cmake=cmake ninja=ninja-build g++=g++
need_packages libgtest-dev locales

cd "$root"
cmake --preset release -B build/test -D ZEPH_BUILD_BENCH=OFF
cmake --build build/test
ctest --test-dir build/test -j "$(nproc)" --output-on-failure --no-tests=error
