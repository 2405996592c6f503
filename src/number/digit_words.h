// Decimal digits eight or sixteen at a time. In a word the first digit lies in the lowest byte.
#ifndef ZEPH_NUMBER_DIGIT_WORDS_H
#define ZEPH_NUMBER_DIGIT_WORDS_H

#include <cstddef>
#include <cstdint>

#include "scan/wide.h"
#include "scan/word.h"

namespace zeph {

constexpr std::uint64_t eight_times(unsigned char byte) {
  return byte * std::uint64_t{0x0101010101010101};
}

// What the bytes are worth as digits.
constexpr std::uint64_t digits_in(std::uint64_t word) {
  return word ^ eight_times('0');
}

// Not zero if one of eight bytes is no digit. A carry out of a byte, which could hide another one,
// comes from a byte that is none itself.
constexpr std::uint64_t foreign_marks(std::uint64_t digits) {
  return (digits | (digits + eight_times(0x80 - 10))) & eight_times(0x80);
}

// The number of eight digits: pairs of them, then pairs of those, then the pair of the halves.
constexpr std::uint64_t join_digits(std::uint64_t digits) {
  digits = digits * (1 + (10 << 8)) >> 8 & 0x00FF00FF00FF00FF;
  digits = digits * (1 + (100 << 16)) >> 16 & 0x0000FFFF0000FFFF;
  return digits * (1 + (std::uint64_t{10000} << 32)) >> 32;
}

// Reads eight bytes; declines if one of them is no digit.
inline bool read_eight_digits(const char* text, std::uint64_t& number) {
  const std::uint64_t digits = digits_in(load_word(text));
  number = join_digits(digits);
  return foreign_marks(digits) == 0;
}

// The same for sixteen bytes.
#ifdef ZEPH_SCAN_SSE2

inline bool read_sixteen_digits(const char* text, std::uint64_t& number) {
  const __m128i digits = _mm_xor_si128(load_16(text), _mm_set1_epi8('0'));
  const __m128i marks = _mm_adds_epu8(digits, _mm_set1_epi8(0x80 - 10));
  const __m128i tens =
      _mm_mullo_epi16(_mm_and_si128(digits, _mm_set1_epi16(0xFF)), _mm_set1_epi16(10));
  const __m128i pairs = _mm_add_epi16(tens, _mm_srli_epi16(digits, 8));
  const __m128i fours = _mm_madd_epi16(pairs, _mm_set1_epi32(1 << 16 | 100));
  const __m128i halves =
      _mm_madd_epi16(_mm_packs_epi32(fours, fours), _mm_set1_epi32(1 << 16 | 10000));
  std::uint64_t both;
  _mm_storel_epi64(reinterpret_cast<__m128i*>(&both), halves);
  number = (both & 0xFFFFFFFF) * 100000000 + (both >> 32);
  return _mm_movemask_epi8(marks) == 0;
}

#else

inline bool read_sixteen_digits(const char* text, std::uint64_t& number) {
  const std::uint64_t first = digits_in(load_word(text)), last = digits_in(load_word(text + 8));
  number = join_digits(first) * 100000000 + join_digits(last);
  return (foreign_marks(first) | foreign_marks(last)) == 0;
}

#endif

}  // namespace zeph

#endif  // ZEPH_NUMBER_DIGIT_WORDS_H
