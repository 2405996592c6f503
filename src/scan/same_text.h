// Comparison of long texts whose end is not known: the way to a zero byte and the comparison in
// one.
#ifndef ZEPH_SCAN_SAME_TEXT_H
#define ZEPH_SCAN_SAME_TEXT_H

#include <cstddef>

#include "scan/wide.h"

namespace zeph {

// How many bytes from the front two ranges of one size have in common, or but for the case of ASCII
// letters, without a zero byte among them. Counts in whole steps: what stands behind is not known,
// and a processor without the wide instructions knows nothing.
inline std::size_t same_text(const char* a, const char* b, std::size_t size);
inline std::size_t same_ascii_text(const char* a, const char* b, std::size_t size);

// The twins, in steps of 256 or 128 bytes.
std::size_t same_text_avx2(const char* a, const char* b, std::size_t size);
std::size_t same_text_avx512(const char* a, const char* b, std::size_t size);
std::size_t same_ascii_text_avx2(const char* a, const char* b, std::size_t size);
std::size_t same_ascii_text_avx512(const char* a, const char* b, std::size_t size);

inline std::size_t same_text([[maybe_unused]] const char* a, [[maybe_unused]] const char* b,
                             [[maybe_unused]] std::size_t size) {
#ifdef ZEPH_HAS_AVX512
  if (has_avx512()) return same_text_avx512(a, b, size);
#endif
#ifdef ZEPH_HAS_AVX2
  if (has_avx2()) return same_text_avx2(a, b, size);
#endif
  return 0;
}

inline std::size_t same_ascii_text([[maybe_unused]] const char* a, [[maybe_unused]] const char* b,
                                   [[maybe_unused]] std::size_t size) {
#ifdef ZEPH_HAS_AVX512
  if (has_avx512()) return same_ascii_text_avx512(a, b, size);
#endif
#ifdef ZEPH_HAS_AVX2
  if (has_avx2()) return same_ascii_text_avx2(a, b, size);
#endif
  return 0;
}

}  // namespace zeph

#endif  // ZEPH_SCAN_SAME_TEXT_H
