// The fold 64 bytes at a time: entered only where the processor has AVX-512.
#include "scan/ascii_fold.h"
#include "scan/wide_avx512.h"

namespace zeph {
namespace {

// The lanes whose byte is one of the 26 from `first` on.
__attribute__((target("avx512bw"))) inline std::uint64_t letters_of(__m512i bytes, __m512i first) {
  return _mm512_cmplt_epu8_mask(_mm512_sub_epi8(bytes, first), _mm512_set1_epi8(26));
}

// Not zero in each byte that differs in more than the case of a letter.
__attribute__((target("avx512bw"))) inline __m512i difference(__m512i a, __m512i b) {
  const __m512i bit = _mm512_set1_epi8(0x20);
  const std::uint64_t letters = letters_of(_mm512_or_si512(a, bit), _mm512_set1_epi8('a'));
  constexpr int xor_and_not = 0x14;  // the truth table of (a ^ b) & ~c
  return _mm512_ternarylogic_epi64(a, b, _mm512_maskz_mov_epi8(letters, bit), xor_and_not);
}

__attribute__((target("avx512bw"))) inline __m512i difference_64(const char* a, const char* b) {
  return difference(load_64(a), load_64(b));
}

}  // namespace

__attribute__((target("avx512bw"))) void put_ascii_fold_avx512(LetterCase to, char* out,
                                                               const char* from, std::size_t size) {
  const __m512i first = _mm512_set1_epi8(first_folded(to)), bit = _mm512_set1_epi8(0x20);
  for (std::size_t i = 0; i < size; i += 64) {
    const std::uint64_t lanes = first_lanes(size - i);
    const __m512i bytes = load_lanes(lanes, from + i);
    const __m512i change = _mm512_maskz_mov_epi8(letters_of(bytes, first), bit);
    _mm512_mask_storeu_epi8(out + i, lanes, _mm512_xor_si512(bytes, change));
  }
}

__attribute__((target("avx512bw"))) bool ascii_folds_alike_avx512(const char* a, const char* b,
                                                                  std::size_t size) {
  std::size_t i = 0;
  for (; size - i >= 256; i += 256) {
    const __m512i front =
        _mm512_or_si512(difference_64(a + i, b + i), difference_64(a + i + 64, b + i + 64));
    const __m512i back = _mm512_or_si512(difference_64(a + i + 128, b + i + 128),
                                         difference_64(a + i + 192, b + i + 192));
    const __m512i any = _mm512_or_si512(front, back);
    if (_mm512_test_epi8_mask(any, any) != 0) return false;
  }
  for (; i < size; i += 64) {
    const std::uint64_t lanes = first_lanes(size - i);
    const __m512i any = difference(load_lanes(lanes, a + i), load_lanes(lanes, b + i));
    if (_mm512_test_epi8_mask(any, any) != 0) return false;
  }
  return true;
}

}  // namespace zeph
