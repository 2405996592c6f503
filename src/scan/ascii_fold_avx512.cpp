// The fold 64 bytes at a time: entered only where the processor has AVX-512.
#include "scan/ascii_fold.h"
#include "scan/wide_avx512.h"

namespace zeph {
namespace {

// The lanes whose byte is one of the 26 from `first` on.
__attribute__((target("avx512bw"))) inline std::uint64_t letters_of(__m512i bytes, __m512i first) {
  return _mm512_cmplt_epu8_mask(_mm512_sub_epi8(bytes, first), _mm512_set1_epi8(26));
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

}  // namespace zeph
