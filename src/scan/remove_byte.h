// Taking one byte out of a range, in place.
#ifndef ZEPH_SCAN_REMOVE_BYTE_H
#define ZEPH_SCAN_REMOVE_BYTE_H

#include <cstddef>

namespace zeph {

// Moves the bytes that are not `byte` to the front, in order; returns how many they are. What
// stands behind them is not told.
std::size_t remove_byte(char* text, std::size_t size, char byte);
std::size_t remove_byte_portable(char* text, std::size_t size, char byte);

// How far a removal has come: the bytes in front of `kept` stay, those from `next` on are to be
// looked at.
struct Removal {
  std::size_t kept, next;
};

// Goes on, 32 bytes a step, up to the first 32 that do not have the byte. Needs AVX2.
Removal remove_dense_byte_avx2(char* text, std::size_t size, char byte, Removal removal);

}  // namespace zeph

#endif  // ZEPH_SCAN_REMOVE_BYTE_H
