#include "scan/ascii_fold.h"

namespace zeph {

void put_ascii_fold_portable(LetterCase to, char* out, const char* from, std::size_t size) {
  for (std::size_t i = 0; i < size; ++i) out[i] = ascii_fold(to, from[i]);
}

bool ascii_folds_alike(const char* a, const char* b, std::size_t size) {
#ifdef ZEPH_HAS_AVX512
  if (has_avx512()) return ascii_folds_alike_avx512(a, b, size);
#endif
  std::size_t i = 0;
#ifdef ZEPH_HAS_AVX2
  if (has_avx2()) i = ascii_alike_128_avx2(a, b, size);
#endif
  const auto lower = [](char byte) { return ascii_fold(LetterCase::lower, byte); };
  while (i < size && lower(a[i]) == lower(b[i])) ++i;
  return i == size;
}

}  // namespace zeph
