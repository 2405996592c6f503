#!/usr/bin/env bash
# Each fuzz target keeps its family's rules for a fixed number of executions.
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

bash scripts/fuzz.sh -20000
