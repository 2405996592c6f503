#include "scan/copy_text.h"

#include <algorithm>
#include <cstring>

#include "scan/byte_mask.h"
#include "scan/find_byte.h"
#include "scan/move_bytes.h"
#include "scan/wide.h"

namespace zeph {

#ifdef ZEPH_SCAN_SSE2

std::size_t copy_text_baseline(char* to, const char* from, std::size_t most, char stop) {
  std::size_t size = 0;
  for (;;) {
    const std::size_t step = std::min(most - size, mask_bytes);
    const std::uint64_t ends =
        byte_mask(from + size, step, '\0') | byte_mask(from + size, step, stop);
    const std::size_t here = ends == 0 ? step : lowest_place(ends);
    move_bytes(to + size, from + size, here);
    size += here;
    if (here < mask_bytes) return size;
  }
}

#else

std::size_t copy_text_baseline(char* to, const char* from, std::size_t most, char stop) {
  const auto size = static_cast<std::size_t>(find_byte_or_end(from, stop, most) - from);
  std::memcpy(to, from, size);
  return size;
}

#endif

std::size_t copy_text(char* to, const char* from, std::size_t most, char stop) {
#ifdef ZEPH_HAS_AVX512
  if (has_avx512()) return copy_text_avx512(to, from, most, stop);
#endif
  std::size_t size = 0;
#ifdef ZEPH_HAS_AVX2
  if (has_avx2()) size = copy_text_128_avx2(to, from, most, stop);
#endif
  return size + copy_text_baseline(to + size, from + size, most - size, stop);
}

}  // namespace zeph
