#!/usr/bin/env bash
# Builds for 64-bit Windows; the DLL exports the declared functions and nothing else.
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

need_packages g++-mingw-w64-x86-64-posix googletest
build_all mingw64
dll_exports x86_64-w64-mingw32-objdump build/mingw64/src/libzeph.dll | check_exports
