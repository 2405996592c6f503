#!/usr/bin/env bash
# Builds for 64-bit ARM Linux and runs the tests under QEMU.
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

need_packages g++-aarch64-linux-gnu qemu-user-static googletest
build_and_test arm64 qemu-aarch64-static -L /usr/aarch64-linux-gnu
