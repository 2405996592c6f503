#!/usr/bin/env bash
# The generated files are what their generators write: every tools/make_*.py --check agrees.
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

need_tools python3=python3
shopt -s nullglob
generators=(tools/make_*.py)
[ "${#generators[@]}" -gt 0 ] || skip "no table is generated yet"
for generator in "${generators[@]}"; do
  echo "$generator"
  python3 "$generator" --check
done
