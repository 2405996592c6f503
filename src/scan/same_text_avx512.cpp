// 256 bytes a step: entered only where the processor has AVX-512.
#include "scan/same_text.h"
#include "scan/wide_avx512.h"

namespace zeph {
namespace {

// Adds what is not zero in each byte that differs.
struct Exactly {
  __attribute__((target("avx512bw"))) static __m512i add(__m512i any, __m512i a, __m512i b) {
    constexpr int or_xor = 0xF6;  // the truth table of a | (b ^ c)
    return _mm512_ternarylogic_epi64(any, a, b, or_xor);
  }
};

// Adds what is not zero in each byte that differs in more than the case of a letter.
struct ButForCase {
  __attribute__((target("avx512bw"))) static __m512i add(__m512i any, __m512i a, __m512i b) {
    const __m512i bit = _mm512_set1_epi8(0x20);
    const __m512i place = _mm512_sub_epi8(_mm512_or_si512(a, bit), _mm512_set1_epi8('a'));
    const std::uint64_t letters = _mm512_cmplt_epu8_mask(place, _mm512_set1_epi8(26));
    constexpr int xor_and_not = 0x14;  // the truth table of (a ^ b) & ~c
    const __m512i free = _mm512_maskz_mov_epi8(letters, bit);
    return _mm512_or_si512(any, _mm512_ternarylogic_epi64(a, b, free, xor_and_not));
  }
};

// Each step looks at whole cache lines of `a`; the first one looks at part of its last line twice.
template <typename Likeness>
__attribute__((target("avx512bw"))) std::size_t alike(const char* a, const char* b,
                                                      std::size_t size) {
  std::size_t done = 0, next = 256 - (reinterpret_cast<std::uintptr_t>(a) & 63);
  for (std::size_t i = 0; size - i >= 256; i = next, next += 256) {
    __m512i least = _mm512_set1_epi8(-1), any = _mm512_setzero_si512();
    for (std::size_t line = 0; line < 4; ++line) {
      __m512i bytes = load_64(a + i + 64 * line);
      __asm__("" : "+v"(bytes));  // else GCC loads them for each of their two uses
      least = _mm512_min_epu8(least, bytes);
      any = Likeness::add(any, bytes, load_64(b + i + 64 * line));
    }
    if ((_mm512_testn_epi8_mask(least, least) | _mm512_test_epi8_mask(any, any)) != 0) break;
    done = i + 256;
  }
  return done;
}

}  // namespace

__attribute__((target("avx512bw"))) std::size_t same_text_avx512(const char* a, const char* b,
                                                                 std::size_t size) {
  return alike<Exactly>(a, b, size);
}

__attribute__((target("avx512bw"))) std::size_t same_ascii_text_avx512(const char* a, const char* b,
                                                                       std::size_t size) {
  return alike<ButForCase>(a, b, size);
}

}  // namespace zeph
