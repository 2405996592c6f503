// The case of the ASCII letters; every other byte keeps its value. What the process's locale says
// about letters stands in frame/locale_fold.h.
#ifndef ZEPH_SCAN_ASCII_FOLD_H
#define ZEPH_SCAN_ASCII_FOLD_H

#include <cstddef>

namespace zeph {

enum class LetterCase { lower, upper };

// The first of the letters that a fold turns into the other case.
constexpr char first_folded(LetterCase to) {
  return to == LetterCase::lower ? 'A' : 'a';
}

constexpr char ascii_fold(LetterCase to, char byte) {
  const auto place = static_cast<unsigned char>(byte - first_folded(to));
  return static_cast<char>(place < 26 ? byte ^ 0x20 : byte);
}

// Writes the `size` bytes of `from` to `out` in the given case. `out` may be `from`; other overlaps
// are not allowed.
void put_ascii_fold(LetterCase to, char* out, const char* from, std::size_t size);

// The twins, with the same promise; that of AVX2 where the build has it, for at least 64 bytes.
void put_ascii_fold_portable(LetterCase to, char* out, const char* from, std::size_t size);
void put_ascii_fold_avx2(LetterCase to, char* out, const char* from, std::size_t size);

}  // namespace zeph

#endif  // ZEPH_SCAN_ASCII_FOLD_H
