// The case of the ASCII letters; every other byte keeps its value. What the process's locale says
// about letters stands in frame/locale_fold.h.
#ifndef ZEPH_SCAN_ASCII_FOLD_H
#define ZEPH_SCAN_ASCII_FOLD_H

#include <cstddef>
#include <cstring>

#include "scan/wide.h"

namespace zeph {

enum class LetterCase { lower, upper };

// The first of the letters that a fold turns into the other case.
constexpr char first_folded(LetterCase to) {
  return to == LetterCase::lower ? 'A' : 'a';
}

constexpr char ascii_fold(LetterCase to, char byte) {
  const auto place = static_cast<unsigned char>(byte - first_folded(to));
  return static_cast<char>(place < 26 ? byte ^ 0x20 : byte);
}

// Writes the `size` bytes of `from` to `out` in the given case. `out` may be `from`; other overlaps
// are not allowed. A short text costs no call.
inline void put_ascii_fold(LetterCase to, char* out, const char* from, std::size_t size);

// The twins, with the same promise; the baseline is what the compiler's target has, the wider ones
// stand where the build has them, that of AVX2 for at least 64 bytes.
inline void put_ascii_fold_baseline(LetterCase to, char* out, const char* from, std::size_t size);
void put_ascii_fold_portable(LetterCase to, char* out, const char* from, std::size_t size);
void put_ascii_fold_avx2(LetterCase to, char* out, const char* from, std::size_t size);
void put_ascii_fold_avx512(LetterCase to, char* out, const char* from, std::size_t size);

// Whether two ranges of one size are the same but for the case of ASCII letters.
bool ascii_folds_alike(const char* a, const char* b, std::size_t size);
bool ascii_folds_alike_avx512(const char* a, const char* b, std::size_t size);

// How many bytes are, in steps of 128, in front of the first step that is not. Needs AVX2.
std::size_t ascii_alike_128_avx2(const char* a, const char* b, std::size_t size);

#ifdef ZEPH_SCAN_SSE2

inline void store_16(char* out, __m128i bytes) {
  _mm_storeu_si128(reinterpret_cast<__m128i*>(out), bytes);
}

// Sizes from `half` to twice as many, which are 4 to 16. The two halves of a piece are both loaded
// before one is stored, since `out` may be `from`.
template <std::size_t half>
void put_short_ascii_fold(LetterCase to, char* out, const char* from, std::size_t size) {
  __m128i head = _mm_setzero_si128(), tail = head;
  std::memcpy(&head, from, half);
  std::memcpy(&tail, from + size - half, half);
  const char first = first_folded(to);
  const __m128i folded = _mm_unpacklo_epi64(other_case_16(head, first), other_case_16(tail, first));
  char both[16];
  store_16(both, folded);
  std::memcpy(out, both, half);
  std::memcpy(out + size - half, both + 8, half);
}

// Sizes from 16 on.
inline void put_ascii_fold_16(LetterCase to, char* out, const char* from, std::size_t size) {
  const char first = first_folded(to);
  const __m128i tail = load_16(from + size - 16);
  for (std::size_t i = 0; i + 16 < size; i += 16) {
    store_16(out + i, other_case_16(load_16(from + i), first));
  }
  store_16(out + size - 16, other_case_16(tail, first));
}

inline void put_ascii_fold_baseline(LetterCase to, char* out, const char* from, std::size_t size) {
  if (size >= 16) return put_ascii_fold_16(to, out, from, size);
  if (size >= 8) return put_short_ascii_fold<8>(to, out, from, size);
  if (size >= 4) return put_short_ascii_fold<4>(to, out, from, size);
  put_ascii_fold_portable(to, out, from, size);
}

#else

inline void put_ascii_fold_baseline(LetterCase to, char* out, const char* from, std::size_t size) {
  put_ascii_fold_portable(to, out, from, size);
}

#endif

inline void put_ascii_fold(LetterCase to, char* out, const char* from, std::size_t size) {
#ifdef ZEPH_HAS_AVX512
  if (size > 32 && has_avx512()) return put_ascii_fold_avx512(to, out, from, size);
#endif
#ifdef ZEPH_HAS_AVX2
  if (size > 64 && has_avx2()) return put_ascii_fold_avx2(to, out, from, size);
#endif
  put_ascii_fold_baseline(to, out, from, size);
}

}  // namespace zeph

#endif  // ZEPH_SCAN_ASCII_FOLD_H
