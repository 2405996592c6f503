#include "scan/last_byte.h"

#include <algorithm>
#include <cstring>

#include "scan/byte_mask.h"
#include "scan/wide.h"

namespace zeph {

std::size_t behind_last_portable(const char* text, std::size_t size, char a, char b) {
  while (size > 0 && text[size - 1] != a && text[size - 1] != b) --size;
  return size;
}

#ifdef ZEPH_SCAN_SSE2

namespace {

// Whether either byte stands among 64. Four steps at once: a long way is bound by how fast it can
// be loaded.
bool any_of_64(const char* from, __m128i a, __m128i b) {
  const auto equal = [=](std::size_t at) {
    const __m128i bytes = load_16(from + at);
    return _mm_or_si128(_mm_cmpeq_epi8(bytes, a), _mm_cmpeq_epi8(bytes, b));
  };
  const __m128i front = _mm_or_si128(equal(0), equal(16)),
                back = _mm_or_si128(equal(32), equal(48));
  return bits_of(_mm_or_si128(front, back)) != 0;
}

// In front of the bytes that have been looked at.
std::size_t behind_last_in_front(const char* text, std::size_t size, char a, char b) {
#ifdef ZEPH_HAS_AVX2
  if (size >= 128 && has_avx2()) size = behind_last_128_avx2(text, size, a, b);
#endif
  const __m128i all_a = all_16(a), all_b = all_16(b);
  while (size > mask_bytes && !any_of_64(text + size - mask_bytes, all_a, all_b)) {
    size -= mask_bytes;
  }
  // What is left to be told apart lies in the last 64 bytes, or there is nothing.
  const std::size_t front = size - std::min(size, mask_bytes);
  const std::size_t behind = behind_last(text + front, size - front, a, b);
  return behind == 0 ? 0 : front + behind;
}

}  // namespace

// Most are near the end.
std::size_t behind_last_far(const char* text, std::size_t size, char a, char b) {
  const __m128i end = load_16(text + size - 16);
  const __m128i places =
      _mm_or_si128(_mm_cmpeq_epi8(end, all_16(a)), _mm_cmpeq_epi8(end, all_16(b)));
  if (const unsigned near = bits_of(places)) return size - 15 + highest_bit(near);
  const std::size_t front = size - mask_bytes;
  if (const std::size_t near = behind_last(text + front, mask_bytes, a, b)) return front + near;
#ifdef __GLIBC__
  // For one byte this runtime's own way back is the faster one.
  if (a == b) {
    const void* const at = memrchr(text, a, front);
    return at ? static_cast<std::size_t>(static_cast<const char*>(at) - text) + 1 : 0;
  }
#endif
  return behind_last_in_front(text, front, a, b);
}

#endif

}  // namespace zeph
