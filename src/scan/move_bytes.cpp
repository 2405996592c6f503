#include "scan/move_bytes.h"

#include <cstdint>

#include "scan/wide.h"

namespace zeph {

#ifdef ZEPH_HAS_AVX512

namespace {

// Whether two ranges of one size have no byte in common.
bool apart(const char* a, const char* b, std::size_t size) {
  const auto x = reinterpret_cast<std::uintptr_t>(a), y = reinterpret_cast<std::uintptr_t>(b);
  return (x < y ? y - x : x - y) >= size;
}

}  // namespace

#endif

void move_long(char* to, const char* from, std::size_t size) {
#ifdef ZEPH_HAS_AVX512
  // The runtime is made for lengths from byte to gigabyte, and has to choose; for this middle its
  // choice takes longer to start.
  const bool middling = size >= 256 && size < 8192;
  if (middling && has_avx512() && apart(to, from, size)) return copy_apart_avx512(to, from, size);
#endif
  std::memmove(to, from, size);
}

}  // namespace zeph
