// Real numbers as texts.
#ifndef ZEPH_NUMBER_REAL_FORMAT_H
#define ZEPH_NUMBER_REAL_FORMAT_H

#include <cstddef>

namespace zeph {

// Room for any real number with up to ten decimals: 321 bytes at most, a longer decimal point of
// the locale not counted.
constexpr std::size_t longest_real = 352;

// Writes what the format "%f" gives, and a terminator. Returns the length.
std::size_t put_real(char (&out)[longest_real], double value);

// Writes what the format "%.*f" gives, and a terminator, within `longest_real` bytes. Returns the
// terminator's place, or NULL where the runtime has to be asked: for what is no number, and where
// the locale has another decimal point than '.'. `decimals` are 0 to 10.
char* put_fixed_real(char* out, double value, int decimals);

// Takes up to two leading zeros out of an exponent of three digits, as some runtimes write it:
// "1.5e+003" becomes "1.5e+3". An exponent of two digits stays. The text has at least 3 bytes.
void trim_exponent(char* text);

}  // namespace zeph

#endif  // ZEPH_NUMBER_REAL_FORMAT_H
