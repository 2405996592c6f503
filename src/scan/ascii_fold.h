// The case of the ASCII letters; every other byte keeps its value. What the process's locale says
// about letters stands in frame/locale_fold.h.
#ifndef ZEPH_SCAN_ASCII_FOLD_H
#define ZEPH_SCAN_ASCII_FOLD_H

#include <cstddef>
#include <cstring>

#include "scan/byte_mask.h"
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

#ifdef ZEPH_SCAN_SSE2

// The first 4, 8 or 16 of the bytes.
template <std::size_t size>
inline void store_first(char* out, __m128i bytes) {
  if constexpr (size == 16) {
    _mm_storeu_si128(reinterpret_cast<__m128i*>(out), bytes);
  } else if constexpr (size == 8) {
    _mm_storel_epi64(reinterpret_cast<__m128i*>(out), bytes);
  } else {
    const int word = _mm_cvtsi128_si32(bytes);
    std::memcpy(out, &word, size);
  }
}

// Sizes from `half` to twice as many, which are 4 to 16. Both halves are loaded before one is
// stored, since `out` may be `from`.
template <std::size_t half>
inline void put_ascii_fold_of_ends(LetterCase to, char* out, const char* from, std::size_t size) {
  const char first = first_folded(to);
  const __m128i head = load_first<half>(from), tail = load_first<half>(from + size - half);
  store_first<half>(out, other_case_16(head, first));
  store_first<half>(out + size - half, other_case_16(tail, first));
}

inline void put_ascii_fold_block(char* out, const char* from, char first) {
  __m128i bytes = load_first<16>(from);
  __asm__("" : "+x"(bytes));  // else GCC loads them for each of their two uses
  store_first<16>(out, other_case_16(bytes, first));
}

// Sizes from 16 on. No load of a whole block waits for the size, which a text just written tells
// late. Of the last 16 bytes some are folded already, if `out` is `from`: they stay as they are.
inline void put_ascii_fold_16(LetterCase to, char* out, const char* from, std::size_t size) {
  const char first = first_folded(to);
  for (std::size_t i = 0; i + 16 <= size; i += 16) put_ascii_fold_block(out + i, from + i, first);
  if (size % 16 != 0) put_ascii_fold_block(out + size - 16, from + size - 16, first);
}

// In this order a size from 8 on takes no more than one jump.
inline void put_ascii_fold_baseline(LetterCase to, char* out, const char* from, std::size_t size) {
  if (size >= 8 && size < 16) return put_ascii_fold_of_ends<8>(to, out, from, size);
  if (__builtin_expect(size >= 16, 1)) return put_ascii_fold_16(to, out, from, size);
  if (size >= 4) return put_ascii_fold_of_ends<4>(to, out, from, size);
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
