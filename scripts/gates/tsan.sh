#!/usr/bin/env bash
# Runs the tests under the thread sanitizer.
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

build_and_test tsan
