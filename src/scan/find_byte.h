// Where a byte stands in a byte text whose length nobody knows yet.
//
// Memory may end, without a terminator, right behind the bytes that a function says it reads.
#ifndef ZEPH_SCAN_FIND_BYTE_H
#define ZEPH_SCAN_FIND_BYTE_H

#include <cstddef>
#include <cstring>

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

}  // namespace zeph

#endif  // ZEPH_SCAN_FIND_BYTE_H
