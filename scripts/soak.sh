#!/usr/bin/env bash
# soak.sh [CALLS]: so many rounds of mixed calls, 100,000,000 without a number; prints the slowest one
# of each family. Fails if memory grows.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/lib.sh
. scripts/lib.sh

need_tools cmake=cmake ninja=ninja-build g++=g++
need_packages libgtest-dev
cmake --preset release -B build/soak -D ZEPH_BUILD_BENCH=OFF -D ZEPH_BUILD_EXAMPLES=OFF >/dev/null
cmake --build build/soak --target zeph_soak >build/soak/build.log ||
  { tail -n 40 build/soak/build.log; exit 1; }
build/soak/tools/zeph_soak "${1:-100000000}"
