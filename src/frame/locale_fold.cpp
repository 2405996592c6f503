#include "frame/locale_fold.h"

#include <cstring>

namespace zeph {

#ifdef ZEPH_HAS_CTYPE_TABLES

namespace {

// The runtime's own table of the "C" locale.
struct AsciiTable {
  int bytes[256];

  constexpr explicit AsciiTable(LetterCase to) : bytes() {
    for (int i = 0; i < 256; ++i) {
      bytes[i] = static_cast<unsigned char>(ascii_fold(to, static_cast<char>(i)));
    }
  }
};
constexpr AsciiTable ascii_lower(LetterCase::lower), ascii_upper(LetterCase::upper);

}  // namespace

bool all_fold_as_ascii(LetterCase to) {
  const bool lower = to == LetterCase::lower;
  const int* const table = lower ? *__ctype_tolower_loc() : *__ctype_toupper_loc();
  return std::memcmp(table, lower ? ascii_lower.bytes : ascii_upper.bytes, sizeof(AsciiTable)) == 0;
}

#else

bool all_fold_as_ascii(LetterCase to) {
  const LocaleFold fold(to);
  for (int i = 0; i < 256; ++i) {
    const char byte = static_cast<char>(i);
    if (fold(byte) != ascii_fold(to, byte)) return false;
  }
  return true;
}

#endif

FoldTable locale_fold_table(LetterCase to) {
  const LocaleFold fold(to);
  FoldTable table;
  for (int i = 0; i < 256; ++i) {
    table.bytes[i] = static_cast<unsigned char>(fold(static_cast<char>(i)));
  }
  return table;
}

}  // namespace zeph
