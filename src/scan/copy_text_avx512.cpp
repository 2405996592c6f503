// Texts of any length, up to 256 bytes a step: entered only where the processor has AVX-512.
#include <algorithm>

#include "scan/byte_mask.h"
#include "scan/copy_text.h"
#include "scan/wide_avx512.h"

namespace zeph {
namespace {

// Copies up to 64 bytes, as many as stand in front of a zero byte. Returns how many.
__attribute__((target("avx512bw"))) std::size_t copy_lanes(char* to, const char* from,
                                                           std::size_t most) {
  const std::uint64_t lanes = first_lanes(most);
  const __m512i bytes = load_lanes(lanes, from);
  const std::uint64_t zeros = _mm512_mask_testn_epi8_mask(lanes, bytes, bytes);
  const std::uint64_t kept = lanes & ~zeros & (zeros - 1);  // all lanes below the lowest zero
  _mm512_mask_storeu_epi8(to, kept, bytes);
  return zeros == 0 ? most : lowest_place(zeros);
}

// The next 256 bytes, unless one of them is zero.
__attribute__((target("avx512bw"))) bool copy_256(char* to, const char* from) {
  const __m512i a = load_64(from), b = load_64(from + 64);
  const __m512i c = load_64(from + 128), d = load_64(from + 192);
  const __m512i least = _mm512_min_epu8(_mm512_min_epu8(a, b), _mm512_min_epu8(c, d));
  if (_mm512_testn_epi8_mask(least, least) != 0) return false;
  _mm512_storeu_si512(to, a);
  _mm512_storeu_si512(to + 64, b);
  _mm512_storeu_si512(to + 128, c);
  _mm512_storeu_si512(to + 192, d);
  return true;
}

// How many bytes there are up to the next cache line: 1 to 64.
std::size_t left_in_line(const char* place) {
  return 64 - reinterpret_cast<std::uintptr_t>(place) % 64;
}

}  // namespace

// Each store but the first starts a cache line: one across two lines takes twice as long.
__attribute__((target("avx512bw"))) std::size_t copy_text_avx512(char* to, const char* from,
                                                                 std::size_t most) {
  std::size_t size = 0, step = left_in_line(to);
  while (size < most) {
    step = std::min(step, most - size);
    const std::size_t here = copy_lanes(to + size, from + size, step);
    size += here;
    if (here < step) break;
    while (most - size >= 256 && copy_256(to + size, from + size)) size += 256;
    step = 64;
  }
  return size;
}

}  // namespace zeph
