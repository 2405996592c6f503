// How the process's locale folds the case of single bytes. Zeph sets no locale and keeps nothing of
// it between calls.
#ifndef ZEPH_FRAME_LOCALE_FOLD_H
#define ZEPH_FRAME_LOCALE_FOLD_H

#include "scan/ascii_fold.h"

namespace zeph {

// Whether the locale folds the ASCII letters and nothing else, as "C" does, and most locales with
// UTF-8 or GBK. It costs two nanoseconds in "C" and some ten in others, or as much as 256 calls of
// tolower() where the runtime does not show its tables: a caller asks once for a text.
bool locale_folds_ascii(LetterCase to);

// One byte in the given case, as the locale has it.
char locale_fold(LetterCase to, char byte);

// The same for every byte.
struct FoldTable {
  unsigned char bytes[256];
};
FoldTable locale_fold_table(LetterCase to);

}  // namespace zeph

#endif  // ZEPH_FRAME_LOCALE_FOLD_H
