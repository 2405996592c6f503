// From decimal digits to the nearest double, ties to the even one.
//
// The number has no sign, and its decimal point is '.'. One too large gives infinity, one too small
// 0.0, as the runtime has it.
#ifndef ZEPH_NUMBER_NEAREST_DOUBLE_H
#define ZEPH_NUMBER_NEAREST_DOUBLE_H

#include <cfloat>
#include <cstdint>
#include <cstring>
#include <limits>

#include "number/powers_of_ten.h"

namespace zeph {

// The number between begin and end. What stands at the end does not continue it.
double nearest_double(const char* begin, const char* end);

static_assert(std::numeric_limits<double>::is_iec559 && DBL_MANT_DIG == 53);

// The powers of ten that are doubles exactly.
constexpr double small_powers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                   1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                   1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

// Whether a word is a double exactly. A processor that calculates with more bits than a double has
// would round the product or quotient of two doubles twice: then none is.
constexpr bool is_exact_double(std::uint64_t word) {
  return FLT_EVAL_METHOD == 0 && word <= std::uint64_t{1} << DBL_MANT_DIG;
}

// A word that is a double exactly, by conversions that every processor has.
inline double exact_double(std::uint64_t word) {
  return static_cast<double>(static_cast<std::int64_t>(word));
}

// word * 10^exponent where both are doubles exactly: their one product or quotient is rounded once.
inline bool scale_small(std::uint64_t word, std::int64_t exponent, double& value) {
  if (!is_exact_double(word) || exponent < -22 || exponent > 22) return false;
  const double number = exact_double(word);
  value = exponent < 0 ? number / small_powers[-exponent] : number * small_powers[exponent];
  return true;
}

// How many bits of a 64-bit significand a double has no room for, the first bit of it set or not.
constexpr int dropped_bits(std::uint64_t high) {
  return 63 - DBL_MANT_DIG + static_cast<int>(high >> 63);
}

// Whether a product that lies up to four units of `low` higher may be above the middle between two
// doubles, or below it.
constexpr bool is_undecided(Wide product) {
  constexpr std::uint64_t doubt = 4;
  const std::uint64_t middle = std::uint64_t{1} << (dropped_bits(product.high) - 1);
  const std::uint64_t dropped = product.high & (2 * middle - 1);
  return (dropped == middle && product.low < doubt) ||
         (dropped == middle - 1 && product.low >= 0 - doubt);
}

// word * 10^exponent, for normal doubles. The first 64 bits of the power settle most numbers: the
// exact product lies less than one unit of `high` above theirs. Where that may reach a middle
// between two doubles, 64 bits more are taken; where those do not settle it, declines.
inline bool scale_wide(std::uint64_t word, std::int64_t exponent, double& value) {
  if (word == 0 || exponent < lowest_power || exponent > highest_power) return false;
  const auto power = static_cast<int>(exponent);
  const int shift = __builtin_clzll(word);
  const Wide bits = power_bits(power);
  Wide product = wide_product(word << shift, bits.high);
  constexpr std::uint64_t below_middle = (std::uint64_t{1} << (62 - DBL_MANT_DIG)) - 1;
  if (((product.high + 1) & below_middle) <= 1) {
    const std::uint64_t carry = wide_product(word << shift, bits.low).high;
    product.low += carry;
    product.high += product.low < carry;
    if (is_undecided(product)) return false;
  }
  const int dropped = dropped_bits(product.high);
  const int biased =
      power_place(power) + 63 - shift + dropped - (63 - DBL_MANT_DIG) + DBL_MAX_EXP - 1;
  if (biased < 1 || biased > 2 * DBL_MAX_EXP - 3) return false;
  // The first bit of the mantissa and a carry out of it both count as one in the exponent.
  const std::uint64_t mantissa = ((product.high >> (dropped - 1)) + 1) >> 1;
  const std::uint64_t image =
      (static_cast<std::uint64_t>(biased - 1) << (DBL_MANT_DIG - 1)) + mantissa;
  std::memcpy(&value, &image, sizeof value);
  return true;
}

// word * 10^exponent, which is the number between begin and end. Its text is looked at only in the
// rare cases where the word does not settle the last bit.
inline double nearest_double(std::uint64_t word, std::int64_t exponent, const char* begin,
                             const char* end) {
  double value;
  if (scale_small(word, exponent, value) || scale_wide(word, exponent, value)) return value;
  return nearest_double(begin, end);
}

}  // namespace zeph

#endif  // ZEPH_NUMBER_NEAREST_DOUBLE_H
