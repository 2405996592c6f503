#include "scan/ascii_fold.h"

#include "scan/wide.h"

namespace zeph {

void put_ascii_fold_portable(LetterCase to, char* out, const char* from, std::size_t size) {
  for (std::size_t i = 0; i < size; ++i) out[i] = ascii_fold(to, from[i]);
}

#ifdef ZEPH_SCAN_SSE2

void put_long_ascii_fold(LetterCase to, char* out, const char* from, std::size_t size) {
#ifdef ZEPH_HAS_AVX2
  if (has_avx2()) return put_ascii_fold_avx2(to, out, from, size);
#endif
  put_ascii_fold_16(to, out, from, size);
}

#endif

}  // namespace zeph
