// The fields of clocks and durations as the formats "%02d", "%03d" and "%04d" write them, without
// the formats: an int has at least `width` characters, filled up with zeros behind its sign, and
// the sign counts as one of them.
#ifndef ZEPH_TIME_CLOCK_TEXT_H
#define ZEPH_TIME_CLOCK_TEXT_H

#include <cstddef>

namespace zeph {

// The most characters of a field: those of the lowest int.
constexpr std::size_t longest_field = sizeof "-2147483648" - 1;

// Any value. Returns the place behind the field, as all functions here do.
char* put_padded(char* to, int value, int width);

// A field that nearly always has exactly `width` digits.
template <int width>
char* put_field(char* to, int value) {
  unsigned limit = 1;
  for (int i = 0; i < width; ++i) limit *= 10;
  auto rest = static_cast<unsigned>(value);
  if (rest >= limit) return put_padded(to, value, width);
  for (int i = width; i-- > 0; rest /= 10) to[i] = static_cast<char>('0' + rest % 10);
  return to + width;
}

// "HH:MM:SS".
inline char* put_clock(char* to, int hours, int minutes, int seconds) {
  to = put_field<2>(to, hours);
  *to++ = ':';
  to = put_field<2>(to, minutes);
  *to++ = ':';
  return put_field<2>(to, seconds);
}

// ".mmm".
inline char* put_milliseconds(char* to, int milliseconds) {
  *to++ = '.';
  return put_field<3>(to, milliseconds);
}

}  // namespace zeph

#endif  // ZEPH_TIME_CLOCK_TEXT_H
