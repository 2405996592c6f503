// The last place of a byte, or of either of two, in a range: what std::memchr is from the other
// end.
#ifndef ZEPH_SCAN_LAST_BYTE_H
#define ZEPH_SCAN_LAST_BYTE_H

#include <cstddef>

namespace zeph {

// How many bytes up to and including the last one that is `a` or `b`; 0 if there is none.
std::size_t behind_last(const char* text, std::size_t size, char a, char b);
std::size_t behind_last_portable(const char* text, std::size_t size, char a, char b);

inline std::size_t behind_last(const char* text, std::size_t size, char byte) {
  return behind_last(text, size, byte, byte);
}

}  // namespace zeph

#endif  // ZEPH_SCAN_LAST_BYTE_H
