// The last place of a byte, or of either of two, in a range: what std::memchr is from the other
// end.
#ifndef ZEPH_SCAN_LAST_BYTE_H
#define ZEPH_SCAN_LAST_BYTE_H

#include <cstddef>

#include "scan/byte_mask.h"

namespace zeph {

std::size_t behind_last_portable(const char* text, std::size_t size, char a, char b);

// In more than mask_bytes.
std::size_t behind_last_far(const char* text, std::size_t size, char a, char b);

// How many bytes up to and including the last one that is `a` or `b`; 0 if there is none. In a
// short text one look tells.
inline std::size_t behind_last(const char* text, std::size_t size, char a, char b) {
#ifdef ZEPH_SCAN_SSE2
  if (size > mask_bytes) return behind_last_far(text, size, a, b);
  std::uint64_t places = byte_mask(text, size, a);
  if (b != a) places |= byte_mask(text, size, b);
  return places == 0 ? 0 : highest_place(places) + 1;
#else
  return behind_last_portable(text, size, a, b);
#endif
}

// Passes what it can in steps of 128 bytes and returns how many bytes are left to be looked at:
// the last 128 of them have one of the two, or there are fewer.
std::size_t behind_last_128_avx2(const char* text, std::size_t size, char a, char b);

inline std::size_t behind_last(const char* text, std::size_t size, char byte) {
  return behind_last(text, size, byte, byte);
}

}  // namespace zeph

#endif  // ZEPH_SCAN_LAST_BYTE_H
