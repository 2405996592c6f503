#!/usr/bin/env bash
# The benchmarks build, agree with their peers and run one quick round. No time is judged.
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

[ -f bench/CMakeLists.txt ] || skip "no benchmark is there yet"
need_packages libbenchmark-dev libgtest-dev
need_tools cmake=cmake ninja=ninja-build g++=g++
cmake --preset release -D ZEPH_BUILD_BENCH=ON
cmake --build build/release --target zeph_bench
build/release/bench/zeph_bench --quick
