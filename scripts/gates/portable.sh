#!/usr/bin/env bash
# Runs the tests on the plain C++ paths, no wide instructions.
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

build_and_test portable
