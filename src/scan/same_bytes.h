// Equality of two short ranges of one size, in a few registers and without a call.
#ifndef ZEPH_SCAN_SAME_BYTES_H
#define ZEPH_SCAN_SAME_BYTES_H

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "scan/wide.h"

namespace zeph {

// All bits that differ between two words of a type.
template <typename Word>
Word word_difference(const char* a, const char* b) {
  Word x, y;
  std::memcpy(&x, a, sizeof x);
  std::memcpy(&y, b, sizeof y);
  return x ^ y;
}

// For sizes from that of a word to twice as many: the first and the last word.
template <typename Word>
bool same_ends(const char* a, const char* b, std::size_t size) {
  const std::size_t tail = size - sizeof(Word);
  return (word_difference<Word>(a, b) | word_difference<Word>(a + tail, b + tail)) == 0;
}

// The most bytes that are compared here; for more the runtime's wider instructions make up for its
// call.
constexpr std::size_t short_range = 64;

#ifdef ZEPH_SCAN_SSE2

// Ranges of 16 to 64 bytes as four vectors each: two from the front and two from the back, which
// overlap in the shorter ones. No size takes another path than the others.
struct VectorPairs {
  __m128i a[4], b[4];

  VectorPairs(const char* from_a, const char* from_b, std::size_t size) {
    const std::size_t second = size < 32 ? size - 16 : 16;
    const std::size_t places[] = {0, second, size - 16 - second, size - 16};
    for (int i = 0; i < 4; ++i) {
      a[i] = load_16(from_a + places[i]);
      b[i] = load_16(from_b + places[i]);
    }
  }
  bool same() const {
    __m128i equal = _mm_cmpeq_epi8(a[0], b[0]);
    for (int i = 1; i < 4; ++i) equal = _mm_and_si128(equal, _mm_cmpeq_epi8(a[i], b[i]));
    return bits_of(equal) == 0xFFFF;
  }
  bool has_zero() const {
    const __m128i least = _mm_min_epu8(_mm_min_epu8(a[0], a[1]), _mm_min_epu8(a[2], a[3]));
    return bits_of(_mm_cmpeq_epi8(least, _mm_setzero_si128())) != 0;
  }
};

#endif

inline bool same_short_bytes(const char* a, const char* b, std::size_t size) {
  if (size < 16) {
    if (__builtin_expect(size >= 8, 1)) return same_ends<std::uint64_t>(a, b, size);
    if (size >= 4) return same_ends<std::uint32_t>(a, b, size);
    if (size >= 2)
      return (word_difference<std::uint16_t>(a, b) == 0) & (a[size - 1] == b[size - 1]);
    return size == 0 || *a == *b;
  }
#ifdef ZEPH_SCAN_SSE2
  return VectorPairs(a, b, size).same();
#else
  return std::memcmp(a, b, size) == 0;
#endif
}

enum class Likeness { same, different, undecided };

// Whether two ranges of one size hold the same text, by one look. Undecided where they differ, but
// perhaps behind a zero byte that ends both texts: always where fewer than 16 bytes differ.
[[gnu::always_inline]] inline Likeness likeness_of_short_texts(const char* a, const char* b,
                                                               std::size_t size) {
#ifdef ZEPH_SCAN_SSE2
  if (__builtin_expect(size >= 16, 1)) {
    const VectorPairs pairs(a, b, size);
    if (__builtin_expect(pairs.same(), 1)) return Likeness::same;
    return __builtin_expect(pairs.has_zero(), 0) ? Likeness::undecided : Likeness::different;
  }
#endif
  return __builtin_expect(same_short_bytes(a, b, size), 1) ? Likeness::same : Likeness::undecided;
}

}  // namespace zeph

#endif  // ZEPH_SCAN_SAME_BYTES_H
