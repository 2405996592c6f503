#!/usr/bin/env bash
# What the protections of the compiler and the linker cost: the rows of the benchmark with the library
# as it is shipped and without ZEPH_HARDEN.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/lib.sh
. scripts/lib.sh

need_tools cmake=cmake ninja=ninja-build g++=g++ python3=python3
need_packages libbenchmark-dev libgtest-dev
for kind in ON OFF; do
  cmake --preset release -B "build/harden_$kind" -D ZEPH_HARDEN=$kind -D ZEPH_BUILD_BENCH=ON \
    -D ZEPH_BUILD_TESTS=OFF -D ZEPH_BUILD_EXAMPLES=OFF >/dev/null
  cmake --build "build/harden_$kind" --target zeph_bench >"build/harden_$kind/build.log"
done
python3 tools/hardening_cost.py build/harden_ON build/harden_OFF "$(($(nproc) - 1))"
