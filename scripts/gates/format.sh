#!/usr/bin/env bash
# The formatter would change nothing (generated tables and data left out).
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

need_tools git=git clang-format=clang-format
clang-format --version | grep -q 'version 14\.' || fail "the format is that of clang-format 14"
tracked '*.h' '*.cpp' | grep -vE '_(table|data)\.(h|cpp)$' | xargs clang-format --dry-run -Werror
