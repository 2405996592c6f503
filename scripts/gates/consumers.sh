#!/usr/bin/env bash
# Hosts of all kinds build against Zeph and run: find_package and pkg-config on an install that was
# moved since, shared and static, and add_subdirectory. The README's host prints what it says.
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

need_tools pkg-config=pkgconf
build_library release
build_library static
work=$root/build/consumers
rm -rf "$work"

# host NAME [CMAKE ARGUMENT...]: builds tests/consumer with CMake and runs it.
host() {
  echo "== $1"
  cmake -S tests/consumer -B "$work/$1" -G Ninja -D CMAKE_BUILD_TYPE=Release "${@:2}"
  cmake --build "$work/$1"
  "$work/$1/consumer"
}

# pkg_config_host NAME PREFIX SOURCE: builds a host with the flags of zeph.pc alone, and runs it.
pkg_config_host() {
  local flags
  echo "== $1" >&2
  flags=$(PKG_CONFIG_PATH=$(dirname "$(find "$2" -name zeph.pc)") pkg-config --cflags --libs zeph)
  mkdir -p "$work/$1"
  # shellcheck disable=SC2086  # the flags are words
  g++ -std=c++11 "$3" $flags -o "$work/$1/consumer"
  LD_LIBRARY_PATH=$(dirname "$(find "$2" -name 'libzeph.*' -print -quit)") "$work/$1/consumer"
}

for kind in release static; do
  cmake --install "build/$kind" --prefix "$work/installed/$kind"
  mkdir -p "$work/moved"
  mv "$work/installed/$kind" "$work/moved/$kind"
  host "package_$kind" -D CMAKE_PREFIX_PATH="$work/moved/$kind"
  pkg_config_host "pkg_config_$kind" "$work/moved/$kind" tests/consumer/consumer.cpp
done
host subdirectory -D ZEPH_SOURCE="$root"

# The first C++ block of the README, and the lines that its comments promise.
# shellcheck disable=SC2016  # backticks are Markdown's here
sed -n '/^```cpp$/,/^```$/p' README.md | sed '/^```/d' >"$work/readme.cpp"
promised=$(sed -n 's,.*printf(.*);  // ,,p' "$work/readme.cpp")
printed=$(pkg_config_host readme "$work/moved/release" "$work/readme.cpp")
[ "$printed" = "$promised" ] || fail "the README's host prints: $printed"

for linked in "$work"/*/consumer; do
  needs=$(readelf -d "$linked" | grep -c 'NEEDED.*libzeph\.so\.3' || true)
  case $linked in
    *static*) [ "$needs" -eq 0 ] || fail "$linked does not hold the static library" ;;
    *) [ "$needs" -eq 1 ] || fail "$linked does not load the shared library" ;;
  esac
done
