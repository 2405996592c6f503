#!/usr/bin/env bash
# The newcomer's command runs, from any folder, and prints a report.
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

report=$(cd / && bash "$root/scripts/demo.sh")
echo "$report"
[ "$(wc -l <<<"$report")" -gt 10 ] || fail "no report"
