#!/usr/bin/env bash
# The shell scripts pass shellcheck.
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

need_tools git=git shellcheck=shellcheck
tracked '*.sh' .ci/run | xargs shellcheck -x -P SCRIPTDIR:.
