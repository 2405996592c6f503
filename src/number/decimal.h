// Numbers in decimal notation: an optional sign, digits with at most one '.', and an optional
// exponent. The decimal point is '.', whatever the locale says.
//
// The walk is short and its result has several parts, so that it is worth being inlined.
#ifndef ZEPH_NUMBER_DECIMAL_H
#define ZEPH_NUMBER_DECIMAL_H

#include <cstddef>
#include <cstdint>

#include "number/digits.h"
#include "number/nearest_double.h"

namespace zeph {

// The zeros in front of the first digit that counts, in a number that has one.
inline std::ptrdiff_t leading_zeros(const char* text) {
  std::ptrdiff_t count = 0;
  for (; *text == '0' || *text == '.'; ++text) count += *text == '0';
  return count;
}

// Adds the exponent at `text` to `exponent` and returns its end, which is `text` if there is none.
inline const char* add_exponent(const char* text, std::int64_t& exponent) {
  if (*text != 'e' && *text != 'E') return text;
  const char* digit = text + 1;
  const bool negative = *digit == '-';
  if (negative || *digit == '+') ++digit;
  if (digit_of(*digit) > 9) return text;
  // No text has so many digits that they could bring a larger exponent back into range.
  constexpr std::int64_t large = std::numeric_limits<std::int64_t>::max() / 100;
  std::int64_t written = 0;
  for (; digit_of(*digit) <= 9; ++digit) {
    if (written < large) written = written * 10 + digit_of(*digit);
  }
  exponent += negative ? -written : written;
  return digit;
}

// What a text starts with.
struct Decimal {
  double value;     // rounded to nearest, ties to even; 0.0 if the text starts with no number
  const char* end;  // behind the number's last byte; the text itself if it starts with no number
  bool has_point;   // true if a '.' was met: in another locale the number ends there
};

// Reads as much of the byte text as belongs to a number. An exponent letter without digits does
// not. A number too large gives infinity, one too small 0.0, both with the number's sign.
inline Decimal read_decimal(const char* text) {
  const bool negative = *text == '-';
  const char* const begin = negative || *text == '+' ? text + 1 : text;
  std::uint64_t word = 0;
  std::int64_t exponent = 0;
  const char* end = append_many_digits(begin, word);
  std::ptrdiff_t digits = end - begin;
  const bool has_point = *end == '.';
  if (has_point) {
    const char* const fraction = end + 1;
    end = append_many_digits(fraction, word);
    exponent = fraction - end;
    digits += end - fraction;
  }
  if (digits == 0) return {0.0, text, has_point};
  end = add_exponent(end, exponent);
  if (digits > most_word_digits) digits -= leading_zeros(begin);
  const double value = digits <= most_word_digits ? nearest_double(word, exponent, begin, end)
                                                  : nearest_double(begin, end);
  return {negative ? -value : value, end, has_point};
}

}  // namespace zeph

#endif  // ZEPH_NUMBER_DECIMAL_H
