// The pair filter 32 places at a time: entered only where the processor has AVX2.
#include "scan/find_pair.h"

#include <immintrin.h>

namespace zeph {
namespace {

// `loose` says whether any bit of the probes does not count.
template <bool loose>
struct WidePair {
  const char *a, *b;
  __m256i byte_a, byte_b, loose_a, loose_b;

  __attribute__((target("avx2"))) WidePair(const char* text, const ProbePair& pair)
      : a(text + pair.a.offset),
        b(text + pair.b.offset),
        byte_a(_mm256_set1_epi8(pair.a.byte)),
        byte_b(_mm256_set1_epi8(pair.b.byte)),
        loose_a(_mm256_set1_epi8(pair.a.loose)),
        loose_b(_mm256_set1_epi8(pair.b.loose)) {}

  // All bits of each of the 32 bytes whose place meets both probes.
  __attribute__((target("avx2"))) __m256i meets(std::size_t place) const {
    const auto* const at_a = reinterpret_cast<const __m256i*>(a + place);
    const auto* const at_b = reinterpret_cast<const __m256i*>(b + place);
    __m256i bytes_a = _mm256_loadu_si256(at_a), bytes_b = _mm256_loadu_si256(at_b);
    if constexpr (loose) {
      bytes_a = _mm256_or_si256(bytes_a, loose_a);
      bytes_b = _mm256_or_si256(bytes_b, loose_b);
    }
    return _mm256_and_si256(_mm256_cmpeq_epi8(bytes_a, byte_a), _mm256_cmpeq_epi8(bytes_b, byte_b));
  }

  __attribute__((target("avx2"))) unsigned bits(std::size_t place) const {
    return static_cast<unsigned>(_mm256_movemask_epi8(meets(place)));
  }

  // Whether any of the 128 places from `place` on meets both.
  __attribute__((target("avx2"))) bool any_of_128(std::size_t place) const {
    const __m256i front = _mm256_or_si256(meets(place), meets(place + 32));
    const __m256i back = _mm256_or_si256(meets(place + 64), meets(place + 96));
    const __m256i any = _mm256_or_si256(front, back);
    return !_mm256_testz_si256(any, any);
  }
};

std::size_t lowest_bit(unsigned bits) {
  return static_cast<std::size_t>(__builtin_ctz(bits));
}

template <bool loose>
__attribute__((target("avx2"))) std::size_t find_wide(const char* text, std::size_t from,
                                                      std::size_t count, const ProbePair& pair) {
  const WidePair<loose> wide(text, pair);
  std::size_t place = from;
  while (count - place >= 128 && !wide.any_of_128(place)) place += 128;
  for (; count - place >= 32; place += 32) {
    if (const unsigned bits = wide.bits(place)) return place + lowest_bit(bits);
  }
  if (place == count) return count;
  // The last places, in a step that ends with the last one.
  const unsigned rest = wide.bits(count - 32) >> (32 - (count - place));
  return rest == 0 ? count : place + lowest_bit(rest);
}

}  // namespace

std::size_t find_pair_avx2(const char* text, std::size_t from, std::size_t count,
                           const ProbePair& pair) {
  return is_loose(pair) ? find_wide<true>(text, from, count, pair)
                        : find_wide<false>(text, from, count, pair);
}

}  // namespace zeph
