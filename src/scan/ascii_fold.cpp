#include "scan/ascii_fold.h"

namespace zeph {

void put_ascii_fold_portable(LetterCase to, char* out, const char* from, std::size_t size) {
  for (std::size_t i = 0; i < size; ++i) out[i] = ascii_fold(to, from[i]);
}

}  // namespace zeph
