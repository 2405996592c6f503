// The pairs of 16 bytes at a time: entered only where the processor has AVX2.
#include "scan/hex_pairs.h"

#include <immintrin.h>

namespace zeph {
namespace {

// Which digit goes to each of 16 places of the output, counted from the digit at `first_digit`, and
// the blank behind every second one. A selector with its highest bit set gives zero.
struct Layout {
  alignas(16) char selectors[16];
  alignas(16) char blanks[16];
};

constexpr Layout make_layout(int first_place, int first_digit) {
  Layout layout{};
  for (int i = 0; i < 16; ++i) {
    const int place = first_place + i, part = place % 3;
    const int digit = place / 3 * 2 + part - first_digit;
    layout.selectors[i] = static_cast<char>(part == 2 ? 0x80 : digit);
    layout.blanks[i] = part == 2 ? ' ' : '\0';
  }
  return layout;
}

constexpr Layout layouts[] = {make_layout(0, 0), make_layout(16, 10), make_layout(32, 16)};

__attribute__((target("avx2"))) __m128i load(const char* from) {
  return _mm_loadu_si128(reinterpret_cast<const __m128i*>(from));
}

struct Pairs {
  __m128i alphabet;

  __attribute__((target("avx2"))) explicit Pairs(HexDigits digits)
      : alphabet(load(digits == HexDigits::lower ? "0123456789abcdef" : "0123456789ABCDEF")) {}

  // The digits for the low four bits of each byte.
  __attribute__((target("avx2"))) __m128i digits_of(__m128i bytes) const {
    return _mm_shuffle_epi8(alphabet, _mm_and_si128(bytes, _mm_set1_epi8(0x0F)));
  }

  __attribute__((target("avx2"))) static __m128i placed(const Layout& layout, __m128i digits) {
    return _mm_or_si128(_mm_shuffle_epi8(digits, load(layout.selectors)), load(layout.blanks));
  }

  __attribute__((target("avx2"))) void put_8(char* out, const char* bytes) const {
    const __m128i block = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(bytes));
    const __m128i high = digits_of(_mm_srli_epi16(block, 4)), low = digits_of(block);
    const __m128i front = _mm_unpacklo_epi8(high, low);
    auto* const to = reinterpret_cast<__m128i*>(out);
    _mm_storeu_si128(to, placed(layouts[0], front));
    _mm_storel_epi64(to + 1, placed(layouts[1], _mm_srli_si128(front, 10)));
  }

  __attribute__((target("avx2"))) void put_16(char* out, const char* bytes) const {
    const __m128i block = load(bytes);
    const __m128i high = digits_of(_mm_srli_epi16(block, 4)), low = digits_of(block);
    const __m128i front = _mm_unpacklo_epi8(high, low), back = _mm_unpackhi_epi8(high, low);
    auto* const to = reinterpret_cast<__m128i*>(out);
    _mm_storeu_si128(to, placed(layouts[0], front));
    _mm_storeu_si128(to + 1, placed(layouts[1], _mm_alignr_epi8(back, front, 10)));
    _mm_storeu_si128(to + 2, placed(layouts[2], back));
  }
};

}  // namespace

// What is left behind the last whole step is written by a step that ends with the last byte.
__attribute__((target("avx2"))) void put_hex_pairs_avx2(HexDigits digits, char* out,
                                                        const char* bytes, std::size_t size) {
  const Pairs pairs(digits);
  if (size < 16) {
    pairs.put_8(out, bytes);
    pairs.put_8(out + 3 * (size - 8), bytes + size - 8);
    return;
  }
  for (std::size_t i = 0; i + 16 <= size; i += 16) pairs.put_16(out + 3 * i, bytes + i);
  if (size % 16 != 0) pairs.put_16(out + 3 * (size - 16), bytes + size - 16);
}

}  // namespace zeph
