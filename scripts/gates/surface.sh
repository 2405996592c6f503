#!/usr/bin/env bash
# What the shared library shows and holds, by GCC and by Clang: the declared functions and nothing
# else, its name, no writable data beyond a list, no work at load, no thread-local storage.
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

need_tools clang++=clang
build_library release
build_library clang

# Every writable object of the library, as c++filt prints it.
writable=()

# Those that the compilers' own start-up code and exception tables bring along.
toolchain='completed\.0|__dso_handle|__TMC_END__|DW\.ref\.__gxx_personality_v0'
dependencies='libstdc\+\+\.so\.6|libgcc_s\.so\.1|libm\.so\.6|libc\.so\.6|ld-linux.*\.so\.[0-9]'

check() {
  local library=$1 foreign found
  echo "$library"
  nm -D --defined-only "$library" | awk '$3 != "ZEPH_3" { print $3 }' | sed 's/@.*//' | check_exports
  foreign=$(nm -D --defined-only --with-symbol-versions "$library" |
    grep -vE ' T .*@@ZEPH_3$| A ZEPH_3' || true)
  [ -z "$foreign" ] || fail "no function of version ZEPH_3: $foreign"

  readelf -dW "$library" | grep -q 'SONAME.*\[libzeph\.so\.3\]' || fail "SONAME is not libzeph.so.3"
  foreign=$(readelf -dW "$library" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p' |
    grep -vxE "$dependencies" || true)
  [ -z "$foreign" ] || fail "needs more than the C++ standard library: $foreign"

  found=$(objdump -t "$library" | awk '$4 ~ /^\.(data|bss)$/ || $3 ~ /^\.(data|bss)$/ { print $NF }' |
    grep -vxE "$toolchain|\.data|\.bss" | c++filt | sort || true)
  diff <(printf '%s\n' "${writable[@]}" | sort) <(printf '%s\n' "$found") ||
    fail "the writable objects (>) are not the listed ones (<)"

  # One entry is the compiler's own; an object with a constructor at load would add another.
  [ "$(section_size "$library" .init_array)" -eq "$(pointer_size "$library")" ] ||
    fail "code of the library runs at load"
  ! readelf -lW "$library" | grep -q ' TLS ' || fail "thread-local storage"
}

section_size() {
  echo $((16#$(objdump -hw "$1" | awk -v name="$2" '$2 == name { print $3 }')))
}

pointer_size() {
  readelf -h "$1" | awk '$1 == "Class:" { print $2 == "ELF64" ? 8 : 4 }'
}

check build/release/src/libzeph.so
check build/clang/src/libzeph.so
