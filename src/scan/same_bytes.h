// Equality of two ranges of one size, where most of them are short: what fits a few registers is
// compared without a call.
#ifndef ZEPH_SCAN_SAME_BYTES_H
#define ZEPH_SCAN_SAME_BYTES_H

#include <cstddef>
#include <cstring>

namespace zeph {

// For sizes from `half` to twice as many: the first and the last `half` bytes.
template <std::size_t half>
bool same_ends(const char* a, const char* b, std::size_t size) {
  const std::size_t tail = size - half;
  return std::memcmp(a, b, half) == 0 && std::memcmp(a + tail, b + tail, half) == 0;
}

inline bool same_bytes(const char* a, const char* b, std::size_t size) {
  if (size >= 16) {
    if (size <= 32) return same_ends<16>(a, b, size);
    if (size > 64) return std::memcmp(a, b, size) == 0;
    return same_ends<16>(a, b, 32) && same_ends<16>(a + size - 32, b + size - 32, 32);
  }
  if (size >= 8) return same_ends<8>(a, b, size);
  if (size >= 4) return same_ends<4>(a, b, size);
  if (size >= 2) return same_ends<2>(a, b, size);
  return size == 0 || *a == *b;
}

}  // namespace zeph

#endif  // ZEPH_SCAN_SAME_BYTES_H
