#!/usr/bin/env bash
# Runs the tests against the static library.
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

build_and_test static
