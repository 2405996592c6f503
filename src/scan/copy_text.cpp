#include "scan/copy_text.h"

#include <algorithm>
#include <cstring>

#include "scan/byte_mask.h"
#include "scan/move_bytes.h"
#include "scan/wide.h"

namespace zeph {

#ifdef ZEPH_SCAN_SSE2

std::size_t copy_text_baseline(char* to, const char* from, std::size_t most) {
  std::size_t size = 0;
  for (;;) {
    const std::size_t step = std::min(most - size, mask_bytes);
    const std::uint64_t zeros = byte_mask(from + size, step, '\0');
    const std::size_t here = zeros == 0 ? step : lowest_place(zeros);
    move_bytes(to + size, from + size, here);
    size += here;
    if (here < mask_bytes) return size;
  }
}

#else

std::size_t copy_text_baseline(char* to, const char* from, std::size_t most) {
  const std::size_t size = strnlen(from, most);
  std::memcpy(to, from, size);
  return size;
}

#endif

std::size_t copy_text(char* to, const char* from, std::size_t most) {
#ifdef ZEPH_HAS_AVX512
  if (has_avx512()) return copy_text_avx512(to, from, most);
#endif
  std::size_t size = 0;
#ifdef ZEPH_HAS_AVX2
  if (has_avx2()) size = copy_text_128_avx2(to, from, most);
#endif
  return size + copy_text_baseline(to + size, from + size, most - size);
}

}  // namespace zeph
