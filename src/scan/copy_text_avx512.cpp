// Long texts, 128 bytes a step: entered only where the processor has AVX-512.
#include "scan/copy_text.h"
#include "scan/wide_avx512.h"

namespace zeph {

__attribute__((target("avx512bw"))) std::size_t copy_text_128_avx512(char* to, const char* from,
                                                                     std::size_t most) {
  std::size_t size = 0;
  for (; most - size >= 128; size += 128) {
    const __m512i front = load_64(from + size), back = load_64(from + size + 64);
    const __m512i least = _mm512_min_epu8(front, back);
    if (_mm512_testn_epi8_mask(least, least) != 0) break;
    _mm512_storeu_si512(to + size, front);
    _mm512_storeu_si512(to + size + 64, back);
  }
  return size;
}

}  // namespace zeph
