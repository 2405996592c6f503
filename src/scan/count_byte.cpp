#include "scan/count_byte.h"

#include <algorithm>

#include "scan/wide.h"

namespace zeph {

std::size_t count_byte_portable(const char* text, std::size_t size, char byte) {
  return static_cast<std::size_t>(std::count(text, text + size, byte));
}

std::size_t count_runs_portable(const char* text, std::size_t size, char byte) {
  std::size_t count = 0;
  for (std::size_t i = 0; i < size; ++i) count += text[i] == byte && text[i + 1] != byte;
  return count;
}

#ifdef ZEPH_SCAN_SSE2

namespace {

// `hits` gives all bits of each of the 16 bytes at a place that count. They are summed up byte by
// byte, and the sums put together before one can overflow.
template <typename Hits>
std::size_t count_wide(std::size_t steps, Hits hits) {
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

}  // namespace

std::size_t count_byte(const char* text, std::size_t size, char byte) {
  const __m128i all = all_16(byte);
  const std::size_t wide = size / 16;
  return count_wide(wide, [=](std::size_t i) { return _mm_cmpeq_epi8(load_16(text + i), all); }) +
         count_byte_portable(text + 16 * wide, size % 16, byte);
}

std::size_t count_runs(const char* text, std::size_t size, char byte) {
  const __m128i all = all_16(byte);
  const std::size_t wide = size / 16;
  const auto ends = [=](std::size_t i) {
    return _mm_andnot_si128(_mm_cmpeq_epi8(load_16(text + i + 1), all),
                            _mm_cmpeq_epi8(load_16(text + i), all));
  };
  return count_wide(wide, ends) + count_runs_portable(text + 16 * wide, size % 16, byte);
}

#else

std::size_t count_byte(const char* text, std::size_t size, char byte) {
  return count_byte_portable(text, size, byte);
}

std::size_t count_runs(const char* text, std::size_t size, char byte) {
  return count_runs_portable(text, size, byte);
}

#endif

}  // namespace zeph
