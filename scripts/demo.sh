#!/usr/bin/env bash
# Builds the library and the equipment-log host, and runs the host on the log that ships here.
# What is missing for that (cmake, ninja-build, g++) is installed first.
set -euo pipefail
root=$(CDPATH="" cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)
# shellcheck source=scripts/lib.sh
. "$root/scripts/lib.sh"

need_tools cmake=cmake ninja=ninja-build c++=g++

build=$root/build/demo
log=$build/build.log
mkdir -p "$build"
if ! {
  cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DZEPH_BUILD_TESTS=OFF -DZEPH_BUILD_BENCH=OFF && cmake --build "$build"
} >"$log" 2>&1; then
  cat "$log" >&2
  exit 1
fi
"$build/examples/equipment_log"
