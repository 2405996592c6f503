// Texts of any length, up to 256 bytes a step: entered only where the processor has AVX-512.
#include <algorithm>

#include "scan/byte_mask.h"
#include "scan/copy_text.h"
#include "scan/wide_avx512.h"

namespace zeph {
namespace {

// `stops` says whether another byte than zero ends the text.
template <bool stops>
struct TextCopy {
  __m512i stop;

  // Zero in each byte that ends the text.
  __attribute__((target("avx512bw"))) __m512i inner(__m512i bytes) const {
    if constexpr (stops) bytes = _mm512_min_epu8(_mm512_xor_si512(bytes, stop), bytes);
    return bytes;
  }

  // Copies up to 64 bytes, as many as stand in front of the end. Returns how many.
  __attribute__((target("avx512bw"))) std::size_t copy_lanes(char* to, const char* from,
                                                             std::size_t most) const {
    const std::uint64_t lanes = first_lanes(most);
    const __m512i bytes = load_lanes(lanes, from), here = inner(bytes);
    const std::uint64_t ends = _mm512_mask_testn_epi8_mask(lanes, here, here);
    const std::uint64_t kept = lanes & ~ends & (ends - 1);  // all lanes below the lowest end
    _mm512_mask_storeu_epi8(to, kept, bytes);
    return ends == 0 ? most : lowest_place(ends);
  }

  // The next 256 bytes, unless one of them ends the text.
  __attribute__((target("avx512bw"))) bool copy_256(char* to, const char* from) const {
    const __m512i a = load_64(from), b = load_64(from + 64);
    const __m512i c = load_64(from + 128), d = load_64(from + 192);
    const __m512i front = _mm512_min_epu8(inner(a), inner(b));
    const __m512i least = _mm512_min_epu8(front, _mm512_min_epu8(inner(c), inner(d)));
    if (_mm512_testn_epi8_mask(least, least) != 0) return false;
    _mm512_storeu_si512(to, a);
    _mm512_storeu_si512(to + 64, b);
    _mm512_storeu_si512(to + 128, c);
    _mm512_storeu_si512(to + 192, d);
    return true;
  }
};

// How many bytes there are up to the next cache line: 1 to 64.
std::size_t left_in_line(const char* place) {
  return 64 - reinterpret_cast<std::uintptr_t>(place) % 64;
}

// Each store but the first starts a cache line: one across two lines takes twice as long.
template <bool stops>
__attribute__((target("avx512bw"))) std::size_t copy_wide(char* to, const char* from,
                                                          std::size_t most, char stop) {
  const TextCopy<stops> copy{_mm512_set1_epi8(stop)};
  std::size_t size = 0, step = left_in_line(to);
  while (size < most) {
    step = std::min(step, most - size);
    const std::size_t here = copy.copy_lanes(to + size, from + size, step);
    size += here;
    if (here < step) break;
    while (most - size >= 256 && copy.copy_256(to + size, from + size)) size += 256;
    step = 64;
  }
  return size;
}

}  // namespace

std::size_t copy_text_avx512(char* to, const char* from, std::size_t most, char stop) {
  return stop == '\0' ? copy_wide<false>(to, from, most, stop)
                      : copy_wide<true>(to, from, most, stop);
}

}  // namespace zeph
