#!/usr/bin/env bash
# Builds for 32-bit Linux and runs the tests.
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

need_tools g++=g++
# The package g++-multilib cannot stand beside cross compilers; the compiler's own one can.
need_packages "g++-$(g++ -dumpversion)-multilib" googletest
build_and_test m32
