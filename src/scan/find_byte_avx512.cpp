// One byte in a long range, 256 bytes a step: entered only where the processor has AVX-512.
#include "scan/byte_mask.h"
#include "scan/find_byte.h"
#include "scan/wide_avx512.h"

namespace zeph {
namespace {

// Zero in each of 64 bytes that is the one.
__attribute__((target("avx512bw"))) __m512i others(const char* from, __m512i byte) {
  return _mm512_xor_si512(load_64(from), byte);
}

// Whether any of 256 bytes is the one.
__attribute__((target("avx512bw"))) bool any_of_256(const char* from, __m512i byte) {
  const __m512i front = _mm512_min_epu8(others(from, byte), others(from + 64, byte));
  const __m512i back = _mm512_min_epu8(others(from + 128, byte), others(from + 192, byte));
  const __m512i least = _mm512_min_epu8(front, back);
  return _mm512_testn_epi8_mask(least, least) != 0;
}

}  // namespace

// Behind the first 64 bytes each load starts a cache line: one across two lines takes twice as
// long.
__attribute__((target("avx512bw"))) const char* find_byte_avx512(const char* text, std::size_t size,
                                                                 char byte) {
  const __m512i all = _mm512_set1_epi8(byte);
  const std::uint64_t first = _mm512_cmpeq_epi8_mask(load_64(text), all);
  if (first != 0) return text + lowest_place(first);
  std::size_t at = 64 - reinterpret_cast<std::uintptr_t>(text) % 64;
  while (size - at >= 256 && !any_of_256(text + at, all)) at += 256;
  for (; at < size; at += 64) {
    const std::uint64_t lanes = first_lanes(size - at);
    const std::uint64_t places =
        _mm512_mask_cmpeq_epi8_mask(lanes, load_lanes(lanes, text + at), all);
    if (places != 0) return text + at + lowest_place(places);
  }
  return nullptr;
}

}  // namespace zeph
