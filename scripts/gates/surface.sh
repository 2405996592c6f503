#!/usr/bin/env bash
# What the shared library shows and holds, by GCC and by Clang: the declared functions and nothing
# else, its name, no writable data beyond a list, no work at load, no thread-local storage.
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

need_tools clang++=clang
build_library release
build_library clang

# Every writable object of the library, as c++filt prints it.
writable=(
  zeph::g_aes
  'Orbane::Zeph_Get_Date()::result'
  'Orbane::Zeph_Get_DateTime()::result'
  'Orbane::Zeph_Get_DateTime2()::result'
  'Orbane::Zeph_Get_SysErrMsg()::result'
  'Orbane::Zeph_Get_Time()::result'
  'Orbane::Zeph_Get_Time2()::result'
  'Orbane::Zeph_Seconds_To_Time(double)::result'
  'Orbane::Zeph_Seconds_To_Time2(double)::result'
)

# Those that the compilers' own start-up code, exception tables and description of the processor
# bring along, and what of these runs at load.
toolchain='completed\.0|__dso_handle|__TMC_END__|DW\.ref\.__gxx_personality_v0'
toolchain+='|__cpu_model|__cpu_features2'
toolchain_at_load='frame_dummy|__cpu_indicator_init'
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

  foreign=$(at_load "$library" | grep -vxE "$toolchain_at_load" || true)
  [ -z "$foreign" ] || fail "runs at load: $foreign"
  ! readelf -lW "$library" | grep -q ' TLS ' || fail "thread-local storage"
}

# The names of the functions in .init_array: the section's entries are relocated addresses.
at_load() {
  local library=$1 size start offset address
  read -r size start < <(objdump -hw "$library" | awk '$2 == ".init_array" { print $3, $4 }')
  while read -r offset address; do
    if ((16#$offset >= 16#$start && 16#$offset < 16#$start + 16#$size)); then
      nm "$library" | grep -i "^0*$address " | awk '{ print $3 }' | grep . || echo "code at $address"
    fi
  done < <(readelf -rW "$library" | awk '/RELATIVE/ { print $1, $NF }')
}

check build/release/src/libzeph.so
check build/clang/src/libzeph.so
