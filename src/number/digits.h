// Decimal digits, and what may stand in front of them.
#ifndef ZEPH_NUMBER_DIGITS_H
#define ZEPH_NUMBER_DIGITS_H

#include <cctype>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace zeph {

// The digit that a byte stands for, more than 9 for any other byte.
constexpr unsigned int digit_of(char byte) {
  return static_cast<unsigned char>(byte) - static_cast<unsigned int>('0');
}

// So many digits never leave 64 bits.
constexpr std::ptrdiff_t most_word_digits = std::numeric_limits<std::uint64_t>::digits10;

// Appends the digits at `text` to the number in `word`, modulo 2^64, and returns their end. Four of
// them take one step, as the chain of multiplications is what a long number waits for.
inline const char* append_digits(const char* text, std::uint64_t& word) {
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

// The white space of the process's locale, which the runtime's atoi and atof skip.
inline const char* skip_white_space(const char* text) {
  while (std::isspace(static_cast<unsigned char>(*text))) ++text;
  return text;
}

}  // namespace zeph

#endif  // ZEPH_NUMBER_DIGITS_H
