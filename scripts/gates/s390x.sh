#!/usr/bin/env bash
# Builds for big-endian 64-bit Linux and runs the tests under QEMU.
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

need_packages g++-s390x-linux-gnu qemu-user-static googletest
build_and_test s390x qemu-s390x-static -L /usr/s390x-linux-gnu
