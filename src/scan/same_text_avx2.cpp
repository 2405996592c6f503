// 128 bytes a step: entered only where the processor has AVX2.
#include <immintrin.h>

#include <cstdint>

#include "scan/same_text.h"

namespace zeph {
namespace {

// All bits of each byte that is the same.
struct Exactly {
  __attribute__((target("avx2"))) static __m256i same(__m256i a, __m256i b) {
    return _mm256_cmpeq_epi8(a, b);
  }
};

// All bits of each byte that is the same but for the case of a letter.
struct ButForCase {
  __attribute__((target("avx2"))) static __m256i same(__m256i a, __m256i b) {
    const __m256i bit = _mm256_set1_epi8(0x20);
    const __m256i shift = _mm256_set1_epi8(static_cast<char>('a' + 128));
    const __m256i place = _mm256_sub_epi8(_mm256_or_si256(a, bit), shift);
    const __m256i letters = _mm256_cmpgt_epi8(_mm256_set1_epi8(-128 + 26), place);
    const __m256i free = _mm256_and_si256(letters, bit);
    return _mm256_cmpeq_epi8(_mm256_or_si256(a, free), _mm256_or_si256(b, free));
  }
};

__attribute__((target("avx2"))) inline __m256i load_32(const char* from) {
  return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(from));
}

// Each step looks at whole vectors of `a`; the first one looks at part of its last one twice.
template <typename Likeness>
__attribute__((target("avx2"))) std::size_t alike(const char* a, const char* b, std::size_t size) {
  std::size_t done = 0, next = 128 - (reinterpret_cast<std::uintptr_t>(a) & 31);
  for (std::size_t i = 0; size - i >= 128; i = next, next += 128) {
    // Zero in each byte that is zero or not the same.
    __m256i least = _mm256_set1_epi8(-1);
    for (std::size_t vector = 0; vector < 4; ++vector) {
      __m256i bytes = load_32(a + i + 32 * vector);
      __asm__("" : "+x"(bytes));  // else GCC loads them for each of their two uses
      const __m256i same = Likeness::same(bytes, load_32(b + i + 32 * vector));
      least = _mm256_min_epu8(least, _mm256_min_epu8(same, bytes));
    }
    const __m256i ends = _mm256_cmpeq_epi8(least, _mm256_setzero_si256());
    if (_mm256_movemask_epi8(ends) != 0) break;
    done = i + 128;
  }
  return done;
}

}  // namespace

__attribute__((target("avx2"))) std::size_t same_text_avx2(const char* a, const char* b,
                                                           std::size_t size) {
  return alike<Exactly>(a, b, size);
}

__attribute__((target("avx2"))) std::size_t same_ascii_text_avx2(const char* a, const char* b,
                                                                 std::size_t size) {
  return alike<ButForCase>(a, b, size);
}

}  // namespace zeph
