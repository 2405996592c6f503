#include "number/powers_of_ten.h"

namespace zeph {
namespace {

// A long number of 32-bit limbs, the highest first. As an integer it holds 5^308 (716 bits). As a
// fraction it starts as 1 in its highest limb, and 5^-342 (its first bit at place -795) still has
// 128 bits in front of the end.
constexpr std::size_t limb_count = 32;
using Limbs = std::array<std::uint32_t, limb_count>;

constexpr void multiply_by_5(Limbs& number) {
  std::uint64_t carry = 0;
  for (std::size_t i = limb_count; i-- > 0;) {
    carry += std::uint64_t{number[i]} * 5;
    number[i] = static_cast<std::uint32_t>(carry);
    carry >>= 32;
  }
}

// Cuts off behind the last limb. As floor(floor(x / 5) / 5) = floor(x / 25), the limbs that remain
// are those of the exact power.
constexpr void divide_by_5(Limbs& number) {
  std::uint64_t rest = 0;
  for (std::uint32_t& limb : number) {
    rest = rest << 32 | limb;
    limb = static_cast<std::uint32_t>(rest / 5);
    rest %= 5;
  }
}

constexpr Wide first_128_bits(const Limbs& number) {
  std::size_t first = 0;
  while (number[first] == 0) ++first;
  std::uint64_t parts[3] = {};  // 6 limbs: up to 31 zero bits, then the 128 bits
  for (std::size_t i = 0; i < 6 && first + i < limb_count; ++i) {
    parts[i / 2] |= std::uint64_t{number[first + i]} << (i % 2 == 0 ? 32 : 0);
  }
  for (; parts[0] >> 63 == 0; parts[1] = parts[1] << 1 | parts[2] >> 63, parts[2] <<= 1) {
    parts[0] = parts[0] << 1 | parts[1] >> 63;
  }
  return {parts[0], parts[1]};
}

constexpr auto all_powers() {
  std::array<Wide, highest_power - lowest_power + 1> bits{};
  constexpr std::size_t one = -lowest_power;
  Limbs number{};
  number.back() = 1;
  for (std::size_t i = one; i < bits.size(); ++i, multiply_by_5(number)) {
    bits[i] = first_128_bits(number);
  }
  number = {};
  number.front() = 1;
  for (std::size_t i = one; i-- > 0;) {
    divide_by_5(number);
    bits[i] = first_128_bits(number);
  }
  return bits;
}

}  // namespace

constexpr std::array<Wide, highest_power - lowest_power + 1> power_table = all_powers();

}  // namespace zeph
