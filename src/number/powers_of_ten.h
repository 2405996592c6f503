// The powers of ten from the smallest to the largest that a double can need, as 128-bit fractions.
#ifndef ZEPH_NUMBER_POWERS_OF_TEN_H
#define ZEPH_NUMBER_POWERS_OF_TEN_H

#include <array>
#include <cstddef>

#include "number/wide_product.h"

namespace zeph {

constexpr int lowest_power = -342;
constexpr int highest_power = 308;

// The first 128 bits of 5^exponent, cut off behind them; the first bit is set. 10^exponent has the
// same bits and lies `exponent` binary places higher. The table starts with the lowest power; it is
// 10 KiB of constants, worked out when the library is compiled.
extern const std::array<Wide, highest_power - lowest_power + 1> power_table;

inline const Wide& power_bits(int exponent) {
  return power_table[static_cast<std::size_t>(exponent - lowest_power)];
}

// The binary place of the first bit of 10^exponent: floor(exponent * log2(10)).
constexpr int power_place(int exponent) {
  return (exponent * 217706) >> 16;
}

}  // namespace zeph

#endif  // ZEPH_NUMBER_POWERS_OF_TEN_H
