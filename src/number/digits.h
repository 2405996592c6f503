// Decimal digits, and what may stand in front of them.
#ifndef ZEPH_NUMBER_DIGITS_H
#define ZEPH_NUMBER_DIGITS_H

#include <cctype>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "number/digit_words.h"

namespace zeph {

// The digit that a byte stands for, more than 9 for any other byte.
constexpr unsigned int digit_of(char byte) {
  return static_cast<unsigned char>(byte) - static_cast<unsigned int>('0');
}

// So many digits never leave 64 bits.
constexpr std::ptrdiff_t most_word_digits = std::numeric_limits<std::uint64_t>::digits10;

// *place, or a zero byte where the place is the end that is passed. Without one the text has a zero
// byte of its own.
template <typename... End>
inline char byte_at(const char* place, End... end) {
  return ((place == end) || ...) ? '\0' : *place;
}

// Appends the digits at `text` to the number in `word`, modulo its size, and returns their end. The
// least work for few of them.
template <typename Word>
inline const char* append_digits(const char* text, Word& word) {
  unsigned int digit = digit_of(*text);
#pragma GCC unroll 4
  for (; digit <= 9; digit = digit_of(*++text)) word = word * 10 + digit;
  return text;
}

// The end of the digits alone.
inline const char* skip_digits(const char* text) {
#pragma GCC unroll 4
  while (digit_of(*text) <= 9) ++text;
  return text;
}

// Appends the digits of a text that may go on behind its end.
inline const char* append_digits(const char* text, std::uint64_t& word, const char* text_end) {
  for (; text != text_end && digit_of(*text) <= 9; ++text) word = word * 10 + digit_of(*text);
  return text;
}

// The same for long numbers in a byte text. Four digits take one step, as the chain of
// multiplications is what they wait for.
inline const char* append_many_digits(const char* text, std::uint64_t& word) {
  for (;; text += 4) {
    const unsigned int a = digit_of(text[0]);
    if (a > 9) return text;
    const unsigned int b = digit_of(text[1]);
    if (b > 9) {
      word = word * 10 + a;
      return text + 1;
    }
    const unsigned int c = digit_of(text[2]);
    if (c > 9) {
      word = word * 100 + (a * 10 + b);
      return text + 2;
    }
    const unsigned int d = digit_of(text[3]);
    if (d > 9) {
      word = word * 1000 + (a * 100 + b * 10 + c);
      return text + 3;
    }
    word = word * 10000 + (a * 1000 + b * 100 + c * 10 + d);
  }
}

// Appends up to 24 digits in steps of 16 and 8, and leaves the others to the caller.
inline const char* append_wide_digits(const char* text, std::uint64_t& word, const char* text_end) {
  std::uint64_t number;
  if (text_end - text >= 16 && read_sixteen_digits(text, number)) {
    word = word * 10000000000000000 + number;
    text += 16;
  }
  if (text_end - text >= 8 && read_eight_digits(text, number)) {
    word = word * 100000000 + number;
    text += 8;
  }
  return text;
}

// All digits of a text that may go on behind its end, many of them at a step. A short text takes
// one test, not two.
inline const char* append_all_digits(const char* text, std::uint64_t& word, const char* text_end) {
  if (text_end - text >= 8) text = append_wide_digits(text, word, text_end);
  return append_digits(text, word, text_end);
}

// The white space of the process's locale, which the runtime's atoi and atof skip.
inline const char* skip_white_space(const char* text) {
  while (std::isspace(static_cast<unsigned char>(*text))) ++text;
  return text;
}

}  // namespace zeph

#endif  // ZEPH_NUMBER_DIGITS_H
