#!/usr/bin/env bash
# The header compiles alone: every standard from C++11 on, every compiler, every warning.
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

need_tools g++=g++ clang++=clang
need_packages g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix

for compiler in g++ clang++ x86_64-w64-mingw32-g++-posix i686-w64-mingw32-g++-posix; do
  for standard in 11 14 17 20 2b; do
    echo "$compiler -std=c++$standard"
    for include in -I -isystem; do
      "$compiler" -std=c++$standard -fsyntax-only -Wall -Wextra -Wpedantic -Wconversion -Werror \
        "$include" include -x c++ - <<<'#include <zeph.h>'
    done
  done
done
