// What the twins for AVX-512 share. A step over fewer than 64 bytes is a whole one with the other
// lanes switched off: the processor neither reads nor writes what stands there, so that nothing
// outside of a range is touched, and no size needs a way of its own.
#ifndef ZEPH_SCAN_WIDE_AVX512_H
#define ZEPH_SCAN_WIDE_AVX512_H

#include <immintrin.h>

#include <cstddef>
#include <cstdint>

namespace zeph {

// The lanes of the first `size` bytes, which are 1 to 64.
inline std::uint64_t few_lanes(std::size_t size) {
  return ~std::uint64_t{0} >> (64 - size);
}

// The same; all of them for more.
inline std::uint64_t first_lanes(std::size_t size) {
  return size >= 64 ? ~std::uint64_t{0} : few_lanes(size);
}

__attribute__((target("avx512bw"))) inline __m512i load_64(const char* from) {
  return _mm512_loadu_si512(from);
}

// The bytes of these lanes, and zeros in the others.
__attribute__((target("avx512bw"))) inline __m512i load_lanes(std::uint64_t lanes,
                                                              const char* from) {
  return _mm512_maskz_loadu_epi8(lanes, from);
}

}  // namespace zeph

#endif  // ZEPH_SCAN_WIDE_AVX512_H
