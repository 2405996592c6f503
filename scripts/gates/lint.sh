#!/usr/bin/env bash
# Static analysis of the library without a finding: clang-tidy and cppcheck.
. "$(dirname "${BASH_SOURCE[0]}")/../gate_lib.sh"

need_tools clang-tidy=clang-tidy cppcheck=cppcheck
configure clang
# Those that are compiled here: the analysis needs their flags.
mapfile -t sources < <(tracked 'src/*.cpp' | grep -vE '_table\.cpp$' | while read -r source; do
  ! grep -q "\"file\": \"$root/$source\"" build/clang/compile_commands.json || echo "$source"
done)
printf '%s\n' "${sources[@]}" | xargs -P "$(nproc)" -n 6 clang-tidy --quiet -p build/clang
echo "clang-tidy: ${#sources[@]} files, no finding"
cppcheck --quiet --error-exitcode=1 --std=c++17 --enable=warning,performance,portability --inline-suppr \
  --suppress=missingIncludeSystem -j "$(nproc)" -I include -I src "${sources[@]}"
echo "cppcheck: ${#sources[@]} files, no finding"
