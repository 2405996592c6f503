#!/usr/bin/env bash
# Builds with Clang, warnings as errors, and runs the tests.
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

need_tools clang++=clang
build_and_test clang
