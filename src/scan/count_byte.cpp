#include "scan/count_byte.h"

#include <algorithm>

#include "scan/wide.h"

namespace zeph {
namespace {

#ifdef ZEPH_SCAN_SSE2

// `hits` gives all bits of each of the 16 bytes at a place that count. They are summed up byte by
// byte, and the sums put together before one can overflow.
template <typename Hits>
std::size_t count_wide(std::size_t size, Hits hits) {
  const std::size_t steps = size / 16;
  std::size_t count = 0;
  for (std::size_t step = 0; step < steps;) {
    const std::size_t end = std::min(steps, step + 255);
    __m128i sums = _mm_setzero_si128();
    for (; step < end; ++step) sums = _mm_sub_epi8(sums, hits(16 * step));
    sums = _mm_sad_epu8(sums, _mm_setzero_si128());
    count += static_cast<std::size_t>(_mm_cvtsi128_si32(sums) +
                                      _mm_cvtsi128_si32(_mm_srli_si128(sums, 8)));
  }
  return count;
}

// Where the whole steps end.
constexpr std::size_t wide_part(std::size_t size) {
  return size - size % 16;
}

#endif

}  // namespace

std::size_t count_byte(const char* text, std::size_t size, char byte) {
  std::size_t count = 0, i = 0;
#ifdef ZEPH_SCAN_SSE2
  const __m128i all = all_16(byte);
  count = count_wide(size, [=](std::size_t at) { return _mm_cmpeq_epi8(load_16(text + at), all); });
  i = wide_part(size);
#endif
  for (; i < size; ++i) count += text[i] == byte;
  return count;
}

std::size_t count_runs(const char* text, std::size_t size, char byte) {
  std::size_t count = 0, i = 0;
#ifdef ZEPH_SCAN_SSE2
  const __m128i all = all_16(byte);
  count = count_wide(size, [=](std::size_t at) {
    return _mm_andnot_si128(_mm_cmpeq_epi8(load_16(text + at + 1), all),
                            _mm_cmpeq_epi8(load_16(text + at), all));
  });
  i = wide_part(size);
#endif
  for (; i < size; ++i) count += text[i] == byte && text[i + 1] != byte;
  return count;
}

std::size_t count_pairs(const char* text, std::size_t size, char first, char second) {
  std::size_t count = 0, i = 0;
#ifdef ZEPH_SCAN_SSE2
  const __m128i all_first = all_16(first), all_second = all_16(second);
  count = count_wide(size, [=](std::size_t at) {
    return _mm_and_si128(_mm_cmpeq_epi8(load_16(text + at), all_first),
                         _mm_cmpeq_epi8(load_16(text + at + 1), all_second));
  });
  i = wide_part(size);
#endif
  for (; i < size; ++i) count += text[i] == first && text[i + 1] == second;
  return count;
}

}  // namespace zeph
