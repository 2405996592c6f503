#include "scan/last_byte.h"

#include "scan/wide.h"

namespace zeph {

std::size_t behind_last_portable(const char* text, std::size_t size, char a, char b) {
  while (size > 0 && text[size - 1] != a && text[size - 1] != b) --size;
  return size;
}

#ifdef ZEPH_SCAN_SSE2

namespace {

constexpr std::size_t step = 16;
constexpr std::size_t stride = 4 * step;

struct WideBytes {
  __m128i a, b;

  __m128i equal(const char* from) const {
    const __m128i bytes = load_16(from);
    return _mm_or_si128(_mm_cmpeq_epi8(bytes, a), _mm_cmpeq_epi8(bytes, b));
  }
  // Four steps at once: a long way is bound by how fast it can be loaded.
  bool any_in_stride(const char* from) const {
    const __m128i front = _mm_or_si128(equal(from), equal(from + step));
    const __m128i back = _mm_or_si128(equal(from + 2 * step), equal(from + 3 * step));
    return bits_of(_mm_or_si128(front, back)) != 0;
  }
};

}  // namespace

std::size_t behind_last(const char* text, std::size_t size, char a, char b) {
  if (size < step) return behind_last_portable(text, size, a, b);  // no 16 bytes to load
  const WideBytes wide{all_16(a), all_16(b)};
  while (size >= stride && !wide.any_in_stride(text + size - stride)) size -= stride;
  for (; size >= step; size -= step) {
    const unsigned bits = bits_of(wide.equal(text + size - step));
    if (bits != 0) return size - step + highest_bit(bits) + 1;
  }
  const unsigned rest = bits_of(wide.equal(text)) & ((1U << size) - 1);
  return rest == 0 ? 0 : highest_bit(rest) + 1;
}

#else

std::size_t behind_last(const char* text, std::size_t size, char a, char b) {
  return behind_last_portable(text, size, a, b);
}

#endif

}  // namespace zeph
