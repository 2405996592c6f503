#!/usr/bin/env bash
# Runs the tests under the address and undefined-behaviour sanitizers.
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

build_and_test asan
