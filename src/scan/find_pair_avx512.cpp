// The pair filter 64 places at a time: entered only where the processor has AVX-512.
#include "scan/find_pair.h"
#include "scan/wide_avx512.h"

namespace zeph {
namespace {

// `loose` says whether any bit of the probes does not count.
template <bool loose>
struct WidePair {
  const char *a, *b;
  __m512i byte_a, byte_b, loose_a, loose_b;

  __attribute__((target("avx512bw"))) WidePair(const char* text, const ProbePair& pair)
      : a(text + pair.a.offset),
        b(text + pair.b.offset),
        byte_a(_mm512_set1_epi8(pair.a.byte)),
        byte_b(_mm512_set1_epi8(pair.b.byte)),
        loose_a(_mm512_set1_epi8(pair.a.loose)),
        loose_b(_mm512_set1_epi8(pair.b.loose)) {}

  // Zero in each byte whose place meets both probes.
  __attribute__((target("avx512bw"))) __m512i missing(__m512i at_a, __m512i at_b) const {
    constexpr int or_xor = 0x56, or_of_xor = 0xF6;  // truth tables: (a | b) ^ c, a | (b ^ c)
    if constexpr (loose) {
      const __m512i other_a = _mm512_ternarylogic_epi64(at_a, loose_a, byte_a, or_xor);
      return _mm512_or_si512(other_a, _mm512_ternarylogic_epi64(at_b, loose_b, byte_b, or_xor));
    }
    return _mm512_ternarylogic_epi64(_mm512_xor_si512(at_a, byte_a), at_b, byte_b, or_of_xor);
  }
  __attribute__((target("avx512bw"))) __m512i missing(std::size_t place) const {
    return missing(load_64(a + place), load_64(b + place));
  }

  // One bit for each of the next `count` places, 64 at most, that meets both.
  __attribute__((target("avx512bw"))) std::uint64_t bits(std::size_t place,
                                                         std::size_t count) const {
    const std::uint64_t lanes = first_lanes(count);
    const __m512i bytes = missing(load_lanes(lanes, a + place), load_lanes(lanes, b + place));
    return _mm512_mask_testn_epi8_mask(lanes, bytes, bytes);
  }

  // Whether any of the 256 places from `place` on meets both.
  __attribute__((target("avx512bw"))) bool any_of_256(std::size_t place) const {
    const __m512i front = _mm512_min_epu8(missing(place), missing(place + 64));
    const __m512i back = _mm512_min_epu8(missing(place + 128), missing(place + 192));
    const __m512i least = _mm512_min_epu8(front, back);
    return _mm512_testn_epi8_mask(least, least) != 0;
  }
};

template <bool loose>
__attribute__((target("avx512bw"))) std::size_t find_wide(const char* text, std::size_t from,
                                                          std::size_t count,
                                                          const ProbePair& pair) {
  const WidePair<loose> wide(text, pair);
  std::size_t place = from;
  while (count - place >= 256 && !wide.any_of_256(place)) place += 256;
  for (; place < count; place += 64) {
    if (const std::uint64_t bits = wide.bits(place, count - place)) {
      return place + static_cast<std::size_t>(__builtin_ctzll(bits));
    }
  }
  return count;
}

}  // namespace

std::size_t find_pair_avx512(const char* text, std::size_t from, std::size_t count,
                             const ProbePair& pair) {
  return is_loose(pair) ? find_wide<true>(text, from, count, pair)
                        : find_wide<false>(text, from, count, pair);
}

}  // namespace zeph
