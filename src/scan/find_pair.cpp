#include "scan/find_pair.h"

#include "scan/wide.h"

namespace zeph {

std::size_t find_pair_portable(const char* text, std::size_t from, std::size_t count,
                               const ProbePair& pair) {
  const auto meets = [text](std::size_t place, const Probe& probe) {
    return (text[place + probe.offset] | probe.loose) == probe.byte;
  };
  std::size_t place = from;
  while (place < count && !(meets(place, pair.a) && meets(place, pair.b))) ++place;
  return place;
}

#ifdef ZEPH_SCAN_SSE2

namespace {

// `loose` says whether any bit of the probes does not count.
template <bool loose>
struct WidePair {
  const char *a, *b;
  __m128i byte_a, byte_b, loose_a, loose_b;

  WidePair(const char* text, const ProbePair& pair)
      : a(text + pair.a.offset),
        b(text + pair.b.offset),
        byte_a(all_16(pair.a.byte)),
        byte_b(all_16(pair.b.byte)),
        loose_a(all_16(pair.a.loose)),
        loose_b(all_16(pair.b.loose)) {}

  unsigned bits(__m128i at_a, __m128i at_b) const {
    if constexpr (loose) {
      at_a = _mm_or_si128(at_a, loose_a);
      at_b = _mm_or_si128(at_b, loose_b);
    }
    const __m128i equal_a = _mm_cmpeq_epi8(at_a, byte_a), equal_b = _mm_cmpeq_epi8(at_b, byte_b);
    return bits_of(_mm_and_si128(equal_a, equal_b));
  }

  // One bit for each of the 16, or 8, places from `place` on that meets both.
  unsigned bits_16(std::size_t place) const {
    return bits(load_16(a + place), load_16(b + place));
  }
  unsigned bits_8(std::size_t place) const {
    return bits(load_8(a + place), load_8(b + place)) & 0xFF;
  }
};

// The last places, fewer than a step of them, are seen in a step that ends with the last one.
std::size_t first_of_rest(std::size_t place, std::size_t count, std::size_t step, unsigned bits) {
  const unsigned rest = bits >> (place - (count - step));
  return rest == 0 ? count : place + lowest_bit(rest);
}

template <bool loose>
std::size_t find_pair_sse2(const char* text, std::size_t from, std::size_t count,
                           const ProbePair& pair) {
  const WidePair<loose> wide(text, pair);
  std::size_t place = from;
  if (count < 16) {
    if (count - place >= 8) {
      if (const unsigned bits = wide.bits_8(place)) return place + lowest_bit(bits);
      place += 8;
    }
    if (place == count) return count;
    return first_of_rest(place, count, 8, wide.bits_8(count - 8));
  }
  for (; count - place >= 16; place += 16) {
    if (const unsigned bits = wide.bits_16(place)) return place + lowest_bit(bits);
  }
  if (place == count) return count;
  return first_of_rest(place, count, 16, wide.bits_16(count - 16));
}

}  // namespace

std::size_t find_pair_baseline(const char* text, std::size_t from, std::size_t count,
                               const ProbePair& pair) {
  if (count < 8) return find_pair_portable(text, from, count, pair);
  return is_loose(pair) ? find_pair_sse2<true>(text, from, count, pair)
                        : find_pair_sse2<false>(text, from, count, pair);
}

#else

std::size_t find_pair_baseline(const char* text, std::size_t from, std::size_t count,
                               const ProbePair& pair) {
  return find_pair_portable(text, from, count, pair);
}

#endif

std::size_t find_pair(const char* text, std::size_t from, std::size_t count,
                      const ProbePair& pair) {
#ifdef ZEPH_HAS_AVX512
  if (has_avx512()) return find_pair_avx512(text, from, count, pair);
#endif
#ifdef ZEPH_HAS_AVX2
  if (count - from >= 64 && has_avx2()) return find_pair_avx2(text, from, count, pair);
#endif
  return find_pair_baseline(text, from, count, pair);
}

}  // namespace zeph
