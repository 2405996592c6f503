// Overwriting what must not stay behind in memory.
#ifndef ZEPH_CIPHER_WIPE_H
#define ZEPH_CIPHER_WIPE_H

#include <cstddef>
#include <cstring>

namespace zeph {

// Zeroes the bytes, also at the end of their life: the empty statement counts as a reader, so that
// the compiler cannot leave the stores out.
inline void wipe(void* bytes, std::size_t size) {
  std::memset(bytes, 0, size);
  __asm__ volatile("" : : "r"(bytes) : "memory");
}

}  // namespace zeph

#endif  // ZEPH_CIPHER_WIPE_H
