#!/usr/bin/env bash
# Builds the library for 32-bit Windows; the DLL exports the declared functions and nothing else.
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

need_packages g++-mingw-w64-i686-posix googletest
build_library mingw32
dll_exports i686-w64-mingw32-objdump build/mingw32/src/libzeph.dll | check_exports
