// Long texts, 128 bytes a step: entered only where the processor has AVX2.
#include <immintrin.h>

#include "scan/copy_text.h"

namespace zeph {

__attribute__((target("avx2"))) std::size_t copy_text_128_avx2(char* to, const char* from,
                                                               std::size_t most, char stop) {
  const __m256i stops = _mm256_set1_epi8(stop);
  std::size_t size = 0;
  for (; most - size >= 128; size += 128) {
    __m256i bytes[4], inner[4];  // zero in each byte that ends the text
    for (int i = 0; i < 4; ++i) {
      bytes[i] = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(from + size + 32 * i));
      inner[i] = _mm256_min_epu8(_mm256_xor_si256(bytes[i], stops), bytes[i]);
    }
    const __m256i least =
        _mm256_min_epu8(_mm256_min_epu8(inner[0], inner[1]), _mm256_min_epu8(inner[2], inner[3]));
    const __m256i ends = _mm256_cmpeq_epi8(least, _mm256_setzero_si256());
    if (!_mm256_testz_si256(ends, ends)) break;
    for (int i = 0; i < 4; ++i) {
      _mm256_storeu_si256(reinterpret_cast<__m256i*>(to + size + 32 * i), bytes[i]);
    }
  }
  return size;
}

}  // namespace zeph
