#!/usr/bin/env bash
# The benchmarks build, agree with all peers and run one quick round, which makes a page. No time is
# judged.
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

bash scripts/bench.sh --quick
