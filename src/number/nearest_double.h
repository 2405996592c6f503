// From decimal digits to the nearest double, ties to the even one.
//
// The number has no sign, and its decimal point is '.'. One too large gives infinity, one too small
// 0.0, as the runtime has it.
#ifndef ZEPH_NUMBER_NEAREST_DOUBLE_H
#define ZEPH_NUMBER_NEAREST_DOUBLE_H

#include <cfloat>
#include <cstdint>
#include <limits>

namespace zeph {

// The number between begin and end. What stands at the end does not continue it.
double nearest_double(const char* begin, const char* end);

// word * 10^exponent, which is the number between begin and end. Its text is looked at only in the
// rare cases where the word does not settle the last bit.
double nearest_wide_double(std::uint64_t word, std::int64_t exponent, const char* begin,
                           const char* end);

static_assert(std::numeric_limits<double>::is_iec559 && DBL_MANT_DIG == 53);

// The powers of ten that are doubles exactly.
constexpr double small_powers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                   1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                   1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

// word * 10^exponent where both are doubles exactly: their one product or quotient is rounded once.
// A processor that calculates with more bits than a double has would round twice.
inline bool scale_small(std::uint64_t word, std::int64_t exponent, double& value) {
  if (FLT_EVAL_METHOD != 0 || word > std::uint64_t{1} << DBL_MANT_DIG) return false;
  if (exponent < -22 || exponent > 22) return false;
  const auto number = static_cast<double>(word);
  value = exponent < 0 ? number / small_powers[-exponent] : number * small_powers[exponent];
  return true;
}

// The same, for any word: most numbers need one product or quotient and no call.
inline double nearest_double(std::uint64_t word, std::int64_t exponent, const char* begin,
                             const char* end) {
  double value;
  if (scale_small(word, exponent, value)) return value;
  return nearest_wide_double(word, exponent, begin, end);
}

}  // namespace zeph

#endif  // ZEPH_NUMBER_NEAREST_DOUBLE_H
