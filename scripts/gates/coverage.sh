#!/usr/bin/env bash
# The tests run every line and branch of src/ that tests/uncovered.txt does not list.
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

grep -qw vaes /proc/cpuinfo || skip "this processor cannot run all of the wide code"
alone_in coverage
bash scripts/coverage.sh
