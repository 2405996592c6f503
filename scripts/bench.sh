#!/usr/bin/env bash
# bench.sh [--quick]: installs the peers, builds Release, measures every family against them and
# writes docs/benchmarks.md and docs/benchmarks.svg: three runs, some fifteen minutes. With --quick one
# short run whose page stands in build/bench, under a minute without the build.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/lib.sh
. scripts/lib.sh

case ${1-} in
  '') runs=(1 2 3) options=() page=docs/benchmarks ;;
  --quick) runs=(1) options=(--quick) page=build/bench/benchmarks ;;
  *) sed -n '2,4s/^# //p' "${BASH_SOURCE[0]}" >&2; exit 2 ;;
esac

need_tools cmake=cmake ninja=ninja-build g++=g++ python3=python3 strip=binutils
need_packages libbenchmark-dev libgtest-dev libabsl-dev libboost-dev libfmt-dev libfast-float-dev \
  libicu-dev libssl-dev libre2-dev
cmake --preset release -B build/bench -D ZEPH_BUILD_BENCH=ON -D ZEPH_BUILD_TESTS=OFF \
  -D ZEPH_BUILD_EXAMPLES=OFF >/dev/null
cmake --build build/bench >build/bench/build.log || { tail -n 40 build/bench/build.log; exit 1; }

# A single core, so that a run is not moved about; it is the last one, as most else runs on the first.
bench=build/bench/bench results=()
for run in "${runs[@]}"; do
  results+=("build/bench/run$run.json")
  taskset -c "$(($(nproc) - 1))" "$bench/zeph_bench" "${options[@]}" --json="build/bench/run$run.json" \
    >"build/bench/run$run.txt"
done
"$bench/zeph_bench" "${options[@]}" --threads --json=build/bench/threads.json
"$bench/zeph_footprint" build/bench/heap.json
python3 tools/benchmark_report.py build/bench "$page.md" "$page.svg" "${results[@]}" \
  build/bench/threads.json build/bench/heap.json
echo "see $page.md"
