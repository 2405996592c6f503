// Real-number text. Two judges look at a text: a test that counts bytes decides whether it is one,
// and a scan that reads from the start decides its value.
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <iterator>

#include "frame/decimal_point.h"
#include "frame/formatted_text.h"
#include "number/bounds.h"
#include "number/decimal.h"
#include "number/slices.h"
#include "platform/platform.h"
#include "zeph.h"

namespace zeph {
namespace {

// 0 if the text fails the test, 2 if it passes and holds exactly one '-', else 1.
int judge_real(const char* text) {
  int points = 0, letters = 0, minuses = 0, pluses = 0;
  bool has_digit = false;
  for (; *text != '\0'; ++text) {
    switch (*text) {
      case '.':
        if (++points > 1) return 0;
        break;
      case 'e':
      case 'E':
        if (++letters > 1) return 0;
        break;
      case '-':
        if (++minuses > 2) return 0;
        break;
      case '+':
        if (++pluses > 2) return 0;
        break;
      default:
        if (*text < '0' || *text > '9') return 0;
        has_digit = true;
    }
  }
  if (!has_digit) return 0;
  return minuses == 1 ? 2 : 1;
}

// What the readers ask of a text. A byte text ends at its zero byte.
struct ByteText {
  const char* begin;

  char at(const char* place) const {
    return *place;
  }
  const char* digits_end(const char* place, std::uint64_t& word) const {
    return append_digits(place, word);
  }
  const char* exponent_end(const char* place, std::int64_t& exponent) const {
    return add_exponent(place, exponent);
  }
};

// A slice may go on behind its end, and may have a zero byte in front of it. It becomes a byte text
// in its work buffer, but only for those who need one.
struct Slice {
  const char* begin;
  const char* end;
  char* work;

  char at(const char* place) const {
    return byte_at(place, end);
  }
  const char* digits_end(const char* place, std::uint64_t& word) const {
    return append_digits(place, word, end);
  }
  // None: its letter is no end, so that a number with an exponent is left to those who read byte
  // texts.
  const char* exponent_end(const char* place, std::int64_t&) const {
    return place;
  }
  ByteText copied() const {
    put_text(work, begin, static_cast<std::size_t>(end - begin));
    return {work};
  }
};

// What the runtime's scan reads in a locale with another decimal point. It stays out of the way of
// the others, who need no room on the stack.
[[gnu::cold, gnu::noinline]] double scan_real(const char* text) {
  double scanned = 0.0;
  scan_text(text, "%lf", &scanned);
  return scanned;
}

// Has the last word on a number with a point that is stored: in another locale it is another one.
// The locale is asked last, so that nothing waits for the answer, and in a function of its own, so
// that the callers need no room on the stack.
[[gnu::noinline]] bool confirm_point(ByteText text, double& value) {
  if (!decimal_point_is_dot()) value = scan_real(text.begin);
  return true;
}
inline bool confirm_point(const Slice& slice, double& value) {
  if (!decimal_point_is_dot()) value = scan_real(slice.copied().begin);
  return true;
}

template <typename Text>
inline bool store_real(const Text& text, double magnitude, bool has_point, double& value) {
  value = *text.begin == '-' ? -magnitude : magnitude;
  return has_point ? confirm_point(text, value) : true;
}

// Any text, from its start. The readers below are for most numbers and leave all others to it. One
// calls the next as its last deed, with all that it knows in registers.
[[gnu::noinline]] bool read_any_real(ByteText text, double& value) {
  const Decimal number = read_decimal(text.begin);
  // A text that is one number from end to end cannot fail the test.
  const bool whole = number.end != text.begin && *number.end == '\0';
  if (!whole && judge_real(text.begin) == 0) return false;
  value = number.value;
  return number.has_point ? confirm_point(text, value) : true;
}
inline bool read_any_real(const Slice& slice, double& value) {
  return read_any_real(slice.copied(), value);
}

// Whether a byte that is no digit stands in no number, nor in what the test takes for one.
inline bool is_foreign(char byte) {
  switch (byte) {
    case '.':
    case 'e':
    case 'E':
    case '+':
    case '-':
      return false;
    default:
      return true;
  }
}

// Whether the digits of a text up to their end, a point among them or not, surely fit a word.
inline bool fits_word(const char* text, const char* end, bool has_point) {
  if (end - text <= most_word_digits + has_point) return true;
  while (text != end && (*text == '0' || *text == '.' || *text == '-')) ++text;
  return end - text <= most_word_digits;
}

// Goes on behind the digits, which end at `end` and make `word`. At least one has been read.
template <typename Text>
inline bool read_behind_digits(const Text& text, const char* end, std::int64_t exponent,
                               bool has_point, std::uint64_t word, double& value) {
  if (!fits_word(text.begin, end, has_point)) return read_any_real(text, value);
  end = text.exponent_end(end, exponent);
  const char behind = text.at(end);
  if (behind != '\0') return is_foreign(behind) ? false : read_any_real(text, value);
  double number;
  const bool settled = scale_small(word, exponent, number) || scale_wide(word, exponent, number);
  return settled ? store_real(text, number, has_point, value) : read_any_real(text, value);
}

template <typename Text>
inline bool read_wide_fraction(const Text& text, const char* fraction, const char* text_end,
                               std::uint64_t word, double& value) {
  const char* const end = text.digits_end(append_wide_digits(fraction, word, text_end), word);
  if (end == fraction) return read_any_real(text, value);
  return read_behind_digits(text, end, fraction - end, true, word, value);
}

// For byte texts out of the way of shorter numbers; for slices, which wait for the heap, in place.
[[gnu::noinline]] bool read_rest(ByteText text, const char* end, std::int64_t exponent,
                                 bool has_point, std::uint64_t word, double& value) {
  return read_behind_digits(text, end, exponent, has_point, word, value);
}
inline bool read_rest(const Slice& slice, const char* end, std::int64_t exponent, bool has_point,
                      std::uint64_t word, double& value) {
  return read_behind_digits(slice, end, exponent, has_point, word, value);
}
[[gnu::noinline]] bool read_long_fraction(ByteText text, const char* fraction, const char* text_end,
                                          std::uint64_t word, double& value) {
  return read_wide_fraction(text, fraction, text_end, word, value);
}
inline bool read_long_fraction(const Slice& slice, const char* fraction, const char* text_end,
                               std::uint64_t word, double& value) {
  return read_wide_fraction(slice, fraction, text_end, word, value);
}

// A number with a point. `fraction` is the place behind it; the digits in front make `word`.
template <typename Text>
inline bool read_fraction(const Text& text, const char* fraction, const char* text_end,
                          std::uint64_t word, double& value) {
  if (text_end - fraction >= 8) return read_long_fraction(text, fraction, text_end, word, value);
  const char* const end = text.digits_end(fraction, word);
  if (end == fraction) return read_any_real(text, value);
  if (text.at(end) != '\0' || end - text.begin > most_word_digits + 1 || !is_exact_double(word)) {
    return read_rest(text, end, fraction - end, true, word, value);
  }
  return store_real(text, exact_double(word) / small_powers[end - fraction], true, value);
}

// The same where the end of the text is not known: it is looked for as far as most numbers go, and
// without it the digits are read one by one.
[[gnu::noinline]] bool read_fraction(ByteText text, const char* fraction, std::uint64_t word,
                                     double& value) {
  constexpr std::size_t near = 32;
  const void* const text_end = std::memchr(fraction, '\0', near);
  return read_fraction(text, fraction, text_end ? static_cast<const char*>(text_end) : fraction,
                       word, value);
}

// `text_end` is passed where it is known. The text may have a zero byte in front of it.
template <typename Text, typename... End>
inline bool read_real(double& value, const Text& text, End... text_end) {
  const char* const begin = text.begin + (text.at(text.begin) == '-');
  std::uint64_t word = 0;
  const char* const end = text.digits_end(begin, word);
  const char behind = text.at(end);
  if (behind == '.') return read_fraction(text, end + 1, text_end..., word, value);
  if (end == begin) return read_any_real(text, value);
  if (behind != '\0' || end - text.begin > most_word_digits) {
    return read_rest(text, end, 0, false, word, value);
  }
  return store_real(text, static_cast<double>(word), false, value);
}

bool read_slice_within_bounds(const char* text, double minimum, double maximum, double& value,
                              int start, int count) {
  return read_slice(text, start, count, [&](const char* begin, const char* end, char* work) {
    return read_real(value, Slice{begin, end, work}, end) && within_bounds(minimum, value, maximum);
  });
}

bool read_real_slice(const char* text, int start, int count, double& value) {
  return read_slice(text, start, count, [&](const char* begin, const char* end, char* work) {
    return read_real(value, Slice{begin, end, work}, end);
  });
}

// What the runtime's atof reads in most slices. Declines where white space or a '+' comes first, no
// digit, many digits, an exponent, what may be hexadecimal, or where the locale has another decimal
// point.
inline bool try_leading_real(const char* text, const char* end, double& value) {
  const bool negative = byte_at(text, end) == '-';
  const char* const begin = text + negative;
  std::uint64_t word = 0;
  const char* stop = append_digits(begin, word, end);
  std::ptrdiff_t decimals = 0;
  if (byte_at(stop, end) == '.') {
    const char* const fraction = stop + 1;
    stop = append_all_digits(fraction, word, end);
    decimals = stop - fraction;
    if (stop - begin == 1) return false;  // a point alone
  }
  const int behind = byte_at(stop, end) | 0x20;  // a letter in either case
  static_assert(most_word_digits < static_cast<std::ptrdiff_t>(std::size(small_powers)));
  if (stop == begin || stop - begin > most_word_digits || behind == 'e' || behind == 'x' ||
      !is_exact_double(word) || !decimal_point_is_dot()) {
    return false;
  }
  const double magnitude = exact_double(word) / small_powers[decimals];
  value = negative ? -magnitude : magnitude;
  return true;
}

// The same for any byte text.
double leading_real(const char* text) {
  if (decimal_point_is_dot()) {
    const char* const number = skip_white_space(text);
    const Decimal decimal = read_decimal(number);
    const bool may_be_hex = *decimal.end == 'x' || *decimal.end == 'X';
    if (decimal.end != number && !may_be_hex) return decimal.value;
  }
  // Infinity, NaN, hexadecimal, another decimal point, or no number.
  const ErrorStateKeeper keeper;
  char* behind;
  const double value = std::strtod(text, &behind);
  return behind == text ? 0.0 : value;  // some runtimes make -0.0 of a '-' without a number
}

}  // namespace
}  // namespace zeph

namespace Orbane {

int Zeph_Double_Check(const char* text) {
  return zeph::judge_real(text);
}

int Zeph_Double_Check(const std::string& text) {
  return zeph::judge_real(text.c_str());
}

bool Zeph_To_Double(const char* text, double* value) {
  return zeph::read_real(*value, zeph::ByteText{text});
}

bool Zeph_To_Double(const std::string& text, double* value) {
  return zeph::read_real(*value, zeph::ByteText{text.c_str()}, text.c_str() + text.size());
}

bool Zeph_To_Double(const char* text, double* value, int start, int count) {
  return zeph::read_real_slice(text, start, count, *value);
}

bool Zeph_To_Double(const std::string& text, double* value, int start, int count) {
  return zeph::read_real_slice(text.c_str(), start, count, *value);
}

bool Zeph_To_Double(const char* text, double minimum, double maximum, double* value) {
  return zeph::read_real(*value, zeph::ByteText{text}) &&
         zeph::within_bounds(minimum, *value, maximum);
}

bool Zeph_To_Double(const std::string& text, double minimum, double maximum, double* value) {
  return zeph::read_real(*value, zeph::ByteText{text.c_str()}, text.c_str() + text.size()) &&
         zeph::within_bounds(minimum, *value, maximum);
}

bool Zeph_To_Double(const char* text, double minimum, double maximum, double* value, int start,
                    int count) {
  return zeph::read_slice_within_bounds(text, minimum, maximum, *value, start, count);
}

bool Zeph_To_Double(const std::string& text, double minimum, double maximum, double* value,
                    int start, int count) {
  return zeph::read_slice_within_bounds(text.c_str(), minimum, maximum, *value, start, count);
}

double Zeph_Ext_Dbl_From_Str(const char* text, int start, int count) {
  return zeph::convert_short_slice(text, start, count, "[ZEPH_API] Ext_Dbl_From_Str Size Error",
                                   zeph::try_leading_real, zeph::leading_real);
}

double Zeph_Ext_Dbl_From_Str(const char* text, int start, int count, char* buffer) {
  return zeph::convert_slice(text, start, count, buffer, zeph::leading_real);
}

}  // namespace Orbane
