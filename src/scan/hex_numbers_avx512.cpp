// The numbers of 16 bytes at a time: entered only where the processor has AVX-512 with the byte
// permutations of VBMI and the compression of VBMI2.
#include "scan/hex_numbers.h"

#include <immintrin.h>

#include <cstdint>

#define ZEPH_TARGET __attribute__((target("avx512bw,avx512vl,avx512vbmi,avx512vbmi2,bmi2,popcnt")))

namespace zeph {
namespace {

constexpr std::size_t block_size = 16;

// The lanes of 16 pairs with a blank behind each, and of these the first digits.
constexpr std::uint64_t all = (std::uint64_t{1} << 48) - 1, first_digits = all / 7;

// Which of the 32 digits goes to each lane.
struct Places {
  alignas(64) char from[64];
};

constexpr Places make_places() {
  Places places{};
  for (int i = 0; i < 48; ++i) places.from[i] = static_cast<char>(i / 3 * 2 + i % 3);
  return places;
}

constexpr Places places = make_places();

ZEPH_TARGET __m512i pairs_of(__m128i bytes) {
  const __m128i alphabet = _mm_loadu_si128(reinterpret_cast<const __m128i*>("0123456789abcdef"));
  const __m128i four = _mm_set1_epi8(0x0F);
  const __m128i high = _mm_shuffle_epi8(alphabet, _mm_and_si128(_mm_srli_epi16(bytes, 4), four));
  const __m128i low = _mm_shuffle_epi8(alphabet, _mm_and_si128(bytes, four));
  const __m256i digits =
      _mm256_set_m128i(_mm_unpackhi_epi8(high, low), _mm_unpacklo_epi8(high, low));
  return _mm512_mask_permutexvar_epi8(_mm512_set1_epi8(' '), all & ~(first_digits << 2),
                                      _mm512_load_si512(places.from),
                                      _mm512_castsi256_si512(digits));
}

}  // namespace

ZEPH_TARGET std::size_t put_hex_numbers_avx512(char*& out, const char* bytes, std::size_t size) {
  std::size_t i = 0;
  for (; size - i >= 2 * block_size; i += block_size) {
    const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes + i));
    const std::uint64_t zeros =
        _pdep_u64(_mm_cmplt_epu8_mask(block, _mm_set1_epi8(0x10)), first_digits);
    _mm512_storeu_si512(out, _mm512_maskz_compress_epi8(all & ~zeros, pairs_of(block)));
    out += 48 - _mm_popcnt_u64(zeros);
  }
  return i;
}

}  // namespace zeph
