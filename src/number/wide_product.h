// Products of 128 bits, on every processor.
#ifndef ZEPH_NUMBER_WIDE_PRODUCT_H
#define ZEPH_NUMBER_WIDE_PRODUCT_H

#include <cstdint>

namespace zeph {

struct Wide {
  std::uint64_t high, low;
};

// From products of 32-bit halves.
constexpr Wide wide_product_portable(std::uint64_t a, std::uint64_t b) {
  constexpr std::uint64_t half = 0xFFFFFFFF;
  const std::uint64_t low = (a & half) * (b & half);
  const std::uint64_t middle = (a >> 32) * (b & half) + (low >> 32);
  const std::uint64_t other = (a & half) * (b >> 32) + (middle & half);
  return {(a >> 32) * (b >> 32) + (middle >> 32) + (other >> 32), other << 32 | (low & half)};
}

constexpr Wide wide_product(std::uint64_t a, std::uint64_t b) {
#if defined(__SIZEOF_INT128__) && !defined(ZEPH_PORTABLE)
  __extension__ using Uint128 = unsigned __int128;
  const Uint128 product = static_cast<Uint128>(a) * b;
  return {static_cast<std::uint64_t>(product >> 64), static_cast<std::uint64_t>(product)};
#else
  return wide_product_portable(a, b);
#endif
}

}  // namespace zeph

#endif  // ZEPH_NUMBER_WIDE_PRODUCT_H
