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

__attribute__((target("avx2"))) void put(char* out, const Layout& layout, __m128i digits) {
  const __m128i placed = _mm_shuffle_epi8(digits, load(layout.selectors));
  _mm_storeu_si128(reinterpret_cast<__m128i*>(out), _mm_or_si128(placed, load(layout.blanks)));
}

}  // namespace

__attribute__((target("avx2"))) void put_hex_pairs_avx2(HexDigits digits, char* out,
                                                        const char* bytes, std::size_t size) {
  const __m128i alphabet =
      load(digits == HexDigits::lower ? "0123456789abcdef" : "0123456789ABCDEF");
  const __m128i low_half = _mm_set1_epi8(0x0F);
  for (std::size_t i = 0; i < size; i += 16, out += 48) {
    const __m128i block = load(bytes + i);
    const __m128i high =
        _mm_shuffle_epi8(alphabet, _mm_and_si128(_mm_srli_epi16(block, 4), low_half));
    const __m128i low = _mm_shuffle_epi8(alphabet, _mm_and_si128(block, low_half));
    const __m128i front = _mm_unpacklo_epi8(high, low), back = _mm_unpackhi_epi8(high, low);
    put(out, layouts[0], front);
    put(out + 16, layouts[1], _mm_alignr_epi8(back, front, 10));
    put(out + 32, layouts[2], back);
  }
}

}  // namespace zeph
