// Copies of middling length, 256 bytes a step: entered only where the processor has AVX-512.
#include "scan/move_bytes.h"
#include "scan/wide_avx512.h"

namespace zeph {
namespace {

struct Step {
  __m512i a, b, c, d;

  __attribute__((target("avx512bw"))) explicit Step(const char* from)
      : a(load_64(from)), b(load_64(from + 64)), c(load_64(from + 128)), d(load_64(from + 192)) {}

  __attribute__((target("avx512bw"))) void store(char* to) const {
    _mm512_storeu_si512(to, a);
    _mm512_storeu_si512(to + 64, b);
    _mm512_storeu_si512(to + 128, c);
    _mm512_storeu_si512(to + 192, d);
  }
};

}  // namespace

// Behind the first 64 bytes each store starts a cache line: one across two lines takes twice as
// long. The last step ends with the last byte.
__attribute__((target("avx512bw"))) void copy_apart_avx512(char* to, const char* from,
                                                           std::size_t size) {
  _mm512_storeu_si512(to, load_64(from));
  std::size_t at = 64 - reinterpret_cast<std::uintptr_t>(to) % 64;
  for (; size - at > 256; at += 256) Step(from + at).store(to + at);
  Step(from + size - 256).store(to + size - 256);
}

}  // namespace zeph
