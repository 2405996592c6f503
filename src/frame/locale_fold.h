// How the process's locale folds the case of single bytes. Zeph sets no locale and keeps nothing of
// it between calls.
#ifndef ZEPH_FRAME_LOCALE_FOLD_H
#define ZEPH_FRAME_LOCALE_FOLD_H

#include <cctype>
#include <clocale>
#include <cstring>

#if __has_include(<langinfo.h>)
#include <langinfo.h>
#endif

#include "scan/ascii_fold.h"

namespace zeph {

// The name of the locale that the fold follows. Asked for directly, where the runtime has it, it
// takes half the time.
inline const char* fold_locale_name() {
#ifdef NL_LOCALE_NAME
  return nl_langinfo(NL_LOCALE_NAME(LC_CTYPE));
#else
  return std::setlocale(LC_CTYPE, nullptr);
#endif
}

// Whether it folds the ASCII letters and nothing else, found by a look at every byte.
bool all_fold_as_ascii(LetterCase to);

// Whether the locale folds the ASCII letters and nothing else, as "C" does, and most locales with
// UTF-8 or GBK. It costs three nanoseconds in "C" and some ten in others, or as much as 256 calls
// of tolower() where the runtime does not show its tables: a caller asks once for a text.
inline bool locale_folds_ascii(LetterCase to) {
  const char* const name = fold_locale_name();
  return (name && std::strcmp(name, "C") == 0) || all_fold_as_ascii(to);
}

// Bytes in the given case, one by one, as the locale has them. What can be looked up once is.
class LocaleFold {
 public:
#ifdef ZEPH_HAS_CTYPE_TABLES
  explicit LocaleFold(LetterCase to)
      : table_(to == LetterCase::lower ? *__ctype_tolower_loc() : *__ctype_toupper_loc()) {}

  char operator()(char byte) const {
    return static_cast<char>(table_[static_cast<unsigned char>(byte)]);
  }

 private:
  const int* table_;
#else
  explicit LocaleFold(LetterCase to) : to_(to) {}

  // The byte goes in as an unsigned one: a negative number is no valid argument with every runtime,
  // and would take 0xFF for the end of a file.
  char operator()(char byte) const {
    const int value = static_cast<unsigned char>(byte);
    return static_cast<char>(to_ == LetterCase::lower ? std::tolower(value) : std::toupper(value));
  }

 private:
  LetterCase to_;
#endif
};

// The same for every byte.
struct FoldTable {
  unsigned char bytes[256];
};
FoldTable locale_fold_table(LetterCase to);

}  // namespace zeph

#endif  // ZEPH_FRAME_LOCALE_FOLD_H
