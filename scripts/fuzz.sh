#!/usr/bin/env bash
# fuzz.sh MINUTES [FAMILY...]: runs the fuzz targets, all of them or the named ones, so many minutes
# each, two at a time, and prints executions, coverage and findings of each. With -COUNT in place of
# MINUTES each runs so many executions. What the fuzzers learn stays in build/fuzz/learned; inputs
# that break a rule, in build/fuzz/findings. Ends with 1 if there was one.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/lib.sh
. scripts/lib.sh

[ $# -gt 0 ] || { sed -n '2,5s/^# //p' "${BASH_SOURCE[0]}" >&2; exit 2; }
amount=$1
shift
case $amount in
  -*) limit=-runs=${amount#-} ;;
  *) limit=-max_total_time=$((amount * 60)) ;;
esac

need_tools cmake=cmake ninja=ninja-build clang++=clang
need_packages libclang-rt-dev libgtest-dev
cmake --preset fuzz >/dev/null
mapfile -t families < <(if [ $# -gt 0 ]; then printf '%s\n' "$@"; else basename -s _rules.cpp -a fuzz/*_rules.cpp; fi)
cmake --build build/fuzz --target "${families[@]/#/fuzz_}" >build/fuzz/build.log ||
  { tail -n 40 build/fuzz/build.log; exit 1; }

# run_target FAMILY: one line on standard output, the fuzzer's own words in build/fuzz/FAMILY.log.
run_target() {
  local family=$1 status=0 log=build/fuzz/$1.log found
  mkdir -p "build/fuzz/learned/$family" "build/fuzz/findings/$family"
  "build/fuzz/fuzz/fuzz_$family" "$limit" -max_len=1024 -timeout=20 -print_final_stats=1 \
    -artifact_prefix="build/fuzz/findings/$family/" "build/fuzz/learned/$family" \
    "fuzz/corpus/$family" >"$log" 2>&1 || status=1
  found=$(find "build/fuzz/findings/$family" -type f | wc -l)
  printf '%-12s %10s executions, coverage %5s, %s findings\n' "$family" \
    "$(sed -n 's/^stat::number_of_executed_units: //p' "$log")" \
    "$(grep -o 'cov: [0-9]*' "$log" | tail -n 1 | tr -dc 0-9)" "$found"
  [ "$status" -eq 0 ] || tail -n 30 "$log"
  [ "$status" -eq 0 ] && [ "$found" -eq 0 ]
}

export limit ASAN_OPTIONS=allocator_may_return_null=1
export -f run_target
printf '%s\n' "${families[@]}" | xargs -P 2 -I {} bash -c 'run_target {}'
