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

inline bool same_short_bytes(const char* a, const char* b, std::size_t size) {
  if (size < 16) {
    if (size >= 8) return same_ends<std::uint64_t>(a, b, size);
    if (size >= 4) return same_ends<std::uint32_t>(a, b, size);
    if (size >= 2)
      return (word_difference<std::uint16_t>(a, b) == 0) & (a[size - 1] == b[size - 1]);
    return size == 0 || *a == *b;
  }
#ifdef ZEPH_SCAN_SSE2
  const auto equal = [a, b](std::size_t at) {
    return _mm_cmpeq_epi8(load_16(a + at), load_16(b + at));
  };
  __m128i both = _mm_and_si128(equal(0), equal(size - 16));
  if (size > 32) both = _mm_and_si128(both, _mm_and_si128(equal(16), equal(size - 32)));
  return bits_of(both) == 0xFFFF;
#else
  return std::memcmp(a, b, size) == 0;
#endif
}

}  // namespace zeph

#endif  // ZEPH_SCAN_SAME_BYTES_H
