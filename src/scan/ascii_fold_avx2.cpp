// The fold 32 bytes at a time: entered only where the processor has AVX2.
#include "scan/ascii_fold.h"

#include <immintrin.h>

namespace zeph {
namespace {

struct Fold32 {
  __m256i shift, last, bit;

  __attribute__((target("avx2"))) explicit Fold32(char first)
      : shift(_mm256_set1_epi8(static_cast<char>(first + 128))),
        last(_mm256_set1_epi8(-128 + 26)),
        bit(_mm256_set1_epi8(0x20)) {}

  __attribute__((target("avx2"))) __m256i of(const char* from) const {
    const __m256i bytes = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(from));
    const __m256i letters = _mm256_cmpgt_epi8(last, _mm256_sub_epi8(bytes, shift));
    return _mm256_xor_si256(bytes, _mm256_and_si256(letters, bit));
  }

  __attribute__((target("avx2"))) static void store(char* out, __m256i bytes) {
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(out), bytes);
  }
};

}  // namespace

__attribute__((target("avx2"))) void put_ascii_fold_avx2(LetterCase to, char* out, const char* from,
                                                         std::size_t size) {
  const Fold32 fold(first_folded(to));
  const __m256i tail0 = fold.of(from + size - 64), tail1 = fold.of(from + size - 32);
  for (std::size_t i = 0; i + 64 < size; i += 64) {
    const __m256i folded = fold.of(from + i + 32);
    Fold32::store(out + i, fold.of(from + i));
    Fold32::store(out + i + 32, folded);
  }
  Fold32::store(out + size - 64, tail0);
  Fold32::store(out + size - 32, tail1);
}

}  // namespace zeph
