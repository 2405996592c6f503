#!/usr/bin/env bash
# The benchmarks build, agree with their peers and run one quick round. No time is judged.
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

[ -f bench/CMakeLists.txt ] || skip "no benchmark is there yet"
need_packages libbenchmark-dev libgtest-dev
need_tools cmake=cmake ninja=ninja-build g++=g++
cmake --preset release -B build/bench -D ZEPH_BUILD_BENCH=ON
cmake --build build/bench --target zeph_bench
build/bench/bench/zeph_bench --quick
