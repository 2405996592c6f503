#!/usr/bin/env bash
# What the protections of the compiler and the linker cost: the benchmark's own rows with the library
# as it is shipped and without ZEPH_HARDEN, alternating, and the geometric mean of the ratios.
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
for run in 1 2 3; do
  for kind in ON OFF; do
    taskset -c "$(($(nproc) - 1))" "build/harden_$kind/bench/zeph_bench" --rounds=5 --only-zeph \
      --json="build/harden_$kind/run$run.json" >/dev/null
  done
done
python3 - <<'PYTHON'
import json, math, statistics

def times(kind):
    found = {}
    for run in (1, 2, 3):
        for row in json.load(open('build/harden_%s/run%d.json' % (kind, run)))['rows']:
            key = row['family'], row['operation'], row['input']
            found.setdefault(key, []).append(row['timings'][0]['ns'])
    return {key: statistics.median(values) for key, values in found.items()}

on, off = times('ON'), times('OFF')
mean = math.exp(statistics.fmean(math.log(on[key] / off[key]) for key in on))
print('%d rows: with the protections a call takes %.3f times as long' % (len(on), mean))
PYTHON
