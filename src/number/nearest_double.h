// From decimal digits to the nearest double, ties to the even one.
//
// The number has no sign, and its decimal point is '.'. One too large gives infinity, one too small
// 0.0, as the runtime has it.
#ifndef ZEPH_NUMBER_NEAREST_DOUBLE_H
#define ZEPH_NUMBER_NEAREST_DOUBLE_H

#include <cstdint>

namespace zeph {

// The number between begin and end. What stands at the end does not continue it.
double nearest_double(const char* begin, const char* end);

// word * 10^exponent, which is the number between begin and end. Its text is looked at only in the
// rare cases where the word does not settle the last bit.
double nearest_double(std::uint64_t word, std::int64_t exponent, const char* begin,
                      const char* end);

}  // namespace zeph

#endif  // ZEPH_NUMBER_NEAREST_DOUBLE_H
