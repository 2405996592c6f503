// What the wide twins of the scan primitives share. ZEPH_SCAN_SSE2 stands where the build's
// baseline has SSE2; ZEPH_HAS_AVX2 and ZEPH_HAS_AVX512 come from the build where these twins are
// compiled beside it.
#ifndef ZEPH_SCAN_WIDE_H
#define ZEPH_SCAN_WIDE_H

#include <cstddef>

#if defined(__SSE2__) && !defined(ZEPH_PORTABLE)
#define ZEPH_SCAN_SSE2
#include <emmintrin.h>
#endif

namespace zeph {

#ifdef ZEPH_SCAN_SSE2

inline __m128i load_16(const char* from) {
  return _mm_loadu_si128(reinterpret_cast<const __m128i*>(from));
}

// By a product and not by the intrinsic for a single byte, which some compilers take through
// memory: a narrow store and a wide load that waits for it.
inline __m128i all_16(char byte) {
  const unsigned four_times = static_cast<unsigned char>(byte) * 0x01010101U;
  return _mm_set1_epi32(static_cast<int>(four_times));
}

inline __m128i load_8(const char* from) {
  return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(from));
}

// One bit for each byte whose highest bit is set.
inline unsigned bits_of(__m128i bytes) {
  return static_cast<unsigned>(_mm_movemask_epi8(bytes));
}

// All bits of the bytes that lie in the 26 from `first` on: shifted down so far that these are the
// 26 lowest signed bytes.
inline __m128i in_alphabet_16(__m128i bytes, char first) {
  const __m128i shifted = _mm_sub_epi8(bytes, all_16(static_cast<char>(first + 128)));
  return _mm_cmplt_epi8(shifted, _mm_set1_epi8(-128 + 26));
}

// Letters of the case that starts at `first` ('A' or 'a') turned into the other case.
inline __m128i other_case_16(__m128i bytes, char first) {
  return _mm_xor_si128(bytes, _mm_and_si128(in_alphabet_16(bytes, first), _mm_set1_epi8(0x20)));
}

inline std::size_t lowest_bit(unsigned bits) {
  return static_cast<std::size_t>(__builtin_ctz(bits));
}

inline std::size_t highest_bit(unsigned bits) {
  return static_cast<std::size_t>(31 - __builtin_clz(bits));
}

#endif

// A load and a test: the compiler's runtime asks the processor once, when the program starts.
#ifdef ZEPH_HAS_AVX2
inline bool has_avx2() {
  return __builtin_cpu_supports("avx2");
}
#endif
#ifdef ZEPH_HAS_AVX512
inline bool has_avx512() {
  return __builtin_cpu_supports("avx512bw");
}
#endif

}  // namespace zeph

#endif  // ZEPH_SCAN_WIDE_H
