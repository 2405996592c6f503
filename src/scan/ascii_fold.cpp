#include "scan/ascii_fold.h"

#include <cstring>

#include "scan/wide.h"

namespace zeph {

void put_ascii_fold_portable(LetterCase to, char* out, const char* from, std::size_t size) {
  for (std::size_t i = 0; i < size; ++i) out[i] = ascii_fold(to, from[i]);
}

#ifdef ZEPH_SCAN_SSE2

namespace {

void store_16(char* out, __m128i bytes) {
  _mm_storeu_si128(reinterpret_cast<__m128i*>(out), bytes);
}

// Sizes up to 16. The two halves of a piece are both loaded before one is stored, since `out` may
// be `from`.
void put_short_fold(LetterCase to, char* out, const char* from, std::size_t size) {
  if (size < 4) return put_ascii_fold_portable(to, out, from, size);
  const std::size_t half = size < 8 ? 4 : 8;
  __m128i head = _mm_setzero_si128(), tail = head;
  if (half == 4) {
    std::memcpy(&head, from, 4);
    std::memcpy(&tail, from + size - 4, 4);
  } else {
    head = load_8(from);
    tail = load_8(from + size - 8);
  }
  const char first = first_folded(to);
  const __m128i folded = _mm_unpacklo_epi64(other_case_16(head, first), other_case_16(tail, first));
  char both[16];
  store_16(both, folded);
  if (half == 4) {
    std::memcpy(out, both, 4);
    std::memcpy(out + size - 4, both + 8, 4);
  } else {
    std::memcpy(out, both, 8);
    std::memcpy(out + size - 8, both + 8, 8);
  }
}

}  // namespace

void put_ascii_fold(LetterCase to, char* out, const char* from, std::size_t size) {
#ifdef ZEPH_HAS_AVX2
  if (size >= 64 && has_avx2()) return put_ascii_fold_avx2(to, out, from, size);
#endif
  if (size < 16) return put_short_fold(to, out, from, size);
  const char first = first_folded(to);
  const __m128i tail = load_16(from + size - 16);
  for (std::size_t i = 0; i + 16 < size; i += 16) {
    store_16(out + i, other_case_16(load_16(from + i), first));
  }
  store_16(out + size - 16, other_case_16(tail, first));
}

#else

void put_ascii_fold(LetterCase to, char* out, const char* from, std::size_t size) {
  put_ascii_fold_portable(to, out, from, size);
}

#endif

}  // namespace zeph
