// Real numbers as texts.
#ifndef ZEPH_NUMBER_REAL_FORMAT_H
#define ZEPH_NUMBER_REAL_FORMAT_H

namespace zeph {

// Takes up to two leading zeros out of an exponent of three digits, as some runtimes write it:
// "1.5e+003" becomes "1.5e+3". An exponent of two digits stays. The text has at least 3 bytes.
void trim_exponent(char* text);

}  // namespace zeph

#endif  // ZEPH_NUMBER_REAL_FORMAT_H
