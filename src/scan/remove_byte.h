// Taking one byte out of a range, in place.
#ifndef ZEPH_SCAN_REMOVE_BYTE_H
#define ZEPH_SCAN_REMOVE_BYTE_H

#include <algorithm>
#include <cstddef>

namespace zeph {

// Moves the bytes that are not `byte` to the front, in order; returns how many they are. What
// stands behind them is not told.
inline std::size_t remove_byte(char* text, std::size_t size, char byte);

// The twins, with the same promise; the short one walks.
inline std::size_t remove_byte_short(char* text, std::size_t size, char byte);
std::size_t remove_byte_wide(char* text, std::size_t size, char byte);
std::size_t remove_byte_portable(char* text, std::size_t size, char byte);

// How far a removal has come: the bytes in front of `kept` stay, those from `next` on are to be
// looked at.
struct Removal {
  std::size_t kept, next;
};

// Goes on, 32 bytes a step, up to the first 32 that do not have the byte. Of what is left behind
// the last step, fewer than 8 bytes are not looked at. Needs AVX2.
Removal remove_dense_byte_avx2(char* text, std::size_t size, char byte, Removal removal);

inline std::size_t remove_byte_short(char* text, std::size_t size, char byte) {
  auto kept = static_cast<std::size_t>(std::find(text, text + size, byte) - text);
  for (std::size_t next = kept; next < size; ++next) {
    const char here = text[next];
    text[kept] = here;
    kept += here != byte;
  }
  return kept;
}

inline std::size_t remove_byte(char* text, std::size_t size, char byte) {
  constexpr std::size_t step = 32;
  return size < step ? remove_byte_short(text, size, byte) : remove_byte_wide(text, size, byte);
}

}  // namespace zeph

#endif  // ZEPH_SCAN_REMOVE_BYTE_H
