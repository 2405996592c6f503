#!/usr/bin/env bash
# Runs the tests under Clang's address and undefined-behaviour sanitizers.
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

need_tools clang++=clang
need_packages libclang-rt-dev
build_and_test asan-clang
