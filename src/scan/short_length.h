// The length of a byte text that is mostly short.
#ifndef ZEPH_SCAN_SHORT_LENGTH_H
#define ZEPH_SCAN_SHORT_LENGTH_H

#include <cstddef>
#include <cstring>

namespace zeph {

// As std::strlen, without a call for the few bytes of most patterns and numbers.
inline std::size_t short_length(const char* text) {
  constexpr std::size_t near = 8;
  for (std::size_t size = 0; size < near; ++size) {
    if (text[size] == '\0') return size;
  }
  return near + std::strlen(text + near);
}

}  // namespace zeph

#endif  // ZEPH_SCAN_SHORT_LENGTH_H
