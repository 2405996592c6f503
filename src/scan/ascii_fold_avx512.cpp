// The fold 64 bytes at a time: entered only where the processor has AVX-512.
#include "scan/ascii_fold.h"
#include "scan/wide_avx512.h"

namespace zeph {
namespace {

// Letters take the same step to their other case, up or down.
struct Fold64 {
  __m512i first, change;

  __attribute__((target("avx512bw"))) explicit Fold64(LetterCase to)
      : first(_mm512_set1_epi8(first_folded(to))),
        change(_mm512_set1_epi8(to == LetterCase::lower ? 0x20 : -0x20)) {}

  __attribute__((target("avx512bw"))) __m512i of(__m512i bytes) const {
    const __m512i place = _mm512_sub_epi8(bytes, first);
    const std::uint64_t letters = _mm512_cmplt_epu8_mask(place, _mm512_set1_epi8(26));
    return _mm512_mask_add_epi8(bytes, letters, bytes, change);
  }
};

}  // namespace

// Behind the first 64 bytes each store starts a cache line, and the last one ends with the last
// byte. What is folded twice stays as it is.
__attribute__((target("avx512bw"))) void put_ascii_fold_avx512(LetterCase to, char* out,
                                                               const char* from, std::size_t size) {
  const Fold64 fold(to);
  if (size < 64) {
    const std::uint64_t lanes = first_lanes(size);
    _mm512_mask_storeu_epi8(out, lanes, fold.of(load_lanes(lanes, from)));
    return;
  }
  const auto put = [&](std::size_t at) __attribute__((target("avx512bw"))) {
    _mm512_storeu_si512(out + at, fold.of(load_64(from + at)));
  };
  put(0);
  for (std::size_t at = 64 - reinterpret_cast<std::uintptr_t>(out) % 64; at < size - 64; at += 64)
    put(at);
  put(size - 64);
}

}  // namespace zeph
