#include "scan/find_byte.h"

#ifdef ZEPH_HAS_STRCHRNUL
#ifndef _GNU_SOURCE
#define _GNU_SOURCE  // strchrnul
#endif
#endif
#include <cstring>

namespace zeph {

const char* find_byte_or_end(const char* text, char byte) {
#ifdef ZEPH_HAS_STRCHRNUL
  return strchrnul(text, byte);
#else
  while (*text != byte && *text != '\0') ++text;
  return text;
#endif
}

const char* find_byte_or_end(const char* text, char byte, std::size_t most) {
#ifdef ZEPH_HAS_STRCHRNUL
  // The length first, in pieces, so that a near byte does not cost a walk to a far end: within it
  // every byte is known to be there, and the runtime's wide search may run.
  constexpr std::size_t piece = 256;
  for (;;) {
    const std::size_t here = strnlen(text, most < piece ? most : piece);
    const void* const found = std::memchr(text, byte, here);
    if (found) return static_cast<const char*>(found);
    text += here;
    most -= here;
    if (most == 0 || here < piece) return text;
  }
#else
  const char* const end = text + most;
  while (text != end && *text != byte && *text != '\0') ++text;
  return text;
#endif
}

}  // namespace zeph
