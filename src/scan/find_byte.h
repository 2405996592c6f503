// Where a byte stands in a byte text whose length nobody knows yet, or in a known range.
//
// Memory may end, without a terminator, right behind the bytes that a function says it reads.
#ifndef ZEPH_SCAN_FIND_BYTE_H
#define ZEPH_SCAN_FIND_BYTE_H

#include <cstddef>
#include <cstring>

#include "scan/wide.h"

namespace zeph {

// The first `byte`, or the terminator. Nothing behind it is read.
inline const char* find_byte_or_end(const char* text, char byte) {
#ifdef ZEPH_HAS_STRCHRNUL
  return strchrnul(text, byte);
#else
  while (*text != byte && *text != '\0') ++text;
  return text;
#endif
}

// The same within the first `most` bytes; text + most if neither stands there. Those bytes, or the
// ones up to the terminator, may all be read, whatever stands among them. It is fastest where the
// byte stands within the `near` first ones.
const char* find_byte_or_end(const char* text, char byte, std::size_t most, std::size_t near = 256);

// The twin of std::memchr for at least 64 bytes.
const char* find_byte_avx512(const char* text, std::size_t size, char byte);

// The first `byte` among `size` bytes that are known to be there; nullptr if there is none.
inline const char* find_known_byte(const char* text, std::size_t size, char byte) {
#ifdef ZEPH_HAS_AVX512
  // In a long range steps twice as wide make up for another start.
  if (size >= 1024 && has_avx512()) return find_byte_avx512(text, size, byte);
#endif
  return static_cast<const char*>(std::memchr(text, byte, size));
}

}  // namespace zeph

#endif  // ZEPH_SCAN_FIND_BYTE_H
