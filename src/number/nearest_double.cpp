#include "number/nearest_double.h"

#include <charconv>
#include <cstdlib>
#include <cstring>

#include "number/powers_of_ten.h"
#include "platform/platform.h"

namespace zeph {
namespace {

// word * 10^exponent by 192 bits of the product, for normal doubles. The power is cut off behind
// 128 bits, so that the exact product lies at most two units of `low` higher (four after a shift):
// where that reaches the middle between two doubles, declines.
inline bool scale_wide(std::uint64_t word, std::int64_t exponent, double& value) {
  if (exponent < lowest_power || exponent > highest_power) return false;
  const auto power = static_cast<int>(exponent);
  const int shift = __builtin_clzll(word);
  const Wide bits = power_bits(power);
  const std::uint64_t carry = wide_product(word << shift, bits.low).high;
  auto [high, low] = wide_product(word << shift, bits.high);
  low += carry;
  high += low < carry;
  int place = power_place(power) + 64 - shift;
  if (high >> 63 == 0) {
    high = high << 1 | low >> 63;
    low <<= 1;
    --place;
  }
  constexpr int dropped_bits = 64 - DBL_MANT_DIG;
  constexpr std::uint64_t middle = std::uint64_t{1} << (dropped_bits - 1);
  constexpr std::uint64_t doubt = 4;
  const std::uint64_t dropped = high & (2 * middle - 1);
  if (dropped == middle && low < doubt) return false;
  if (dropped == middle - 1 && low >= 0 - doubt) return false;
  const int biased = place + DBL_MAX_EXP - 1;
  if (biased < 1 || biased > 2 * DBL_MAX_EXP - 3) return false;
  // The first bit of the mantissa and a carry out of it both count as one in the exponent.
  const std::uint64_t mantissa = (high >> dropped_bits) + (dropped >= middle);
  const std::uint64_t image =
      (static_cast<std::uint64_t>(biased - 1) << (DBL_MANT_DIG - 1)) + mantissa;
  std::memcpy(&value, &image, sizeof value);
  return true;
}

}  // namespace

// Rare: it stays out of the way of the others, who need no room on the stack.
[[gnu::cold, gnu::noinline]] double nearest_double(const char* begin, const char* end) {
  double value = 0.0;
  if (std::from_chars(begin, end, value).ec == std::errc()) return value;
  const ErrorStateKeeper keeper;
  return std::strtod(begin, nullptr);  // infinity or 0.0: no double comes near
}

double nearest_wide_double(std::uint64_t word, std::int64_t exponent, const char* begin,
                           const char* end) {
  double value;
  if (word != 0 && scale_wide(word, exponent, value)) return value;
  return nearest_double(begin, end);
}

}  // namespace zeph
