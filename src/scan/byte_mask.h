// Where a byte stands among up to 64 known bytes, all places at once.
#ifndef ZEPH_SCAN_BYTE_MASK_H
#define ZEPH_SCAN_BYTE_MASK_H

#include <cstddef>
#include <cstdint>
#include <cstring>

#if defined(__SSE2__) && !defined(ZEPH_PORTABLE)
#define ZEPH_SCAN_SSE2
#include <emmintrin.h>
#endif

namespace zeph {

// The most bytes that one mask covers.
constexpr std::size_t mask_bytes = 64;

// The reference: bit i is set if bytes[i] is `byte`.
inline std::uint64_t byte_mask_portable(const char* bytes, std::size_t size, char byte) {
  std::uint64_t mask = 0;
  for (std::size_t i = 0; i < size; ++i) mask |= std::uint64_t{bytes[i] == byte} << i;
  return mask;
}

#ifdef ZEPH_SCAN_SSE2

// By a product and not by the intrinsic for a single byte: some compilers take the byte to the
// vector unit through memory, a narrow store and a wide load, which waits for some twelve cycles.
inline __m128i sixteen_times(char byte) {
  const std::uint32_t four_times = static_cast<unsigned char>(byte) * std::uint32_t{0x01010101};
  return _mm_set1_epi32(static_cast<int>(four_times));
}

// 2, 4, 8 or 16 bytes and zeros behind them. Not by a copy to the vector as a whole, which goes
// through memory as well.
template <std::size_t size>
__m128i load_first(const char* from) {
  if constexpr (size == 16) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(from));
  } else if constexpr (size == 8) {
    return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(from));
  } else {
    std::uint32_t word = 0;
    std::memcpy(&word, from, size);
    return _mm_cvtsi32_si128(static_cast<int>(word));
  }
}

// The places of `byte` among `size` bytes that are at least `half` and at most twice as many: in
// the first and in the last `half`. What lies in both is set twice.
template <std::size_t half>
std::uint64_t byte_mask_of_ends(const char* bytes, std::size_t size, char byte) {
  const char* const tail = bytes + size - half;
  if constexpr (half == 32) {
    return byte_mask_of_ends<16>(bytes, 32, byte) | byte_mask_of_ends<16>(tail, 32, byte)
                                                        << (size - 32);
  } else {
    const auto places = [byte](const char* from) -> std::uint64_t {
      const __m128i word = load_first<half>(from);
      const int equal = _mm_movemask_epi8(_mm_cmpeq_epi8(word, sixteen_times(byte)));
      return static_cast<unsigned>(equal) & ((std::uint64_t{1} << half) - 1);
    };
    return places(bytes) | places(tail) << (size - half);
  }
}

inline std::uint64_t byte_mask_sse2(const char* bytes, std::size_t size, char byte) {
  if (size >= 32) return byte_mask_of_ends<32>(bytes, size, byte);
  if (size >= 16) return byte_mask_of_ends<16>(bytes, size, byte);
  if (size >= 8) return byte_mask_of_ends<8>(bytes, size, byte);
  if (size >= 4) return byte_mask_of_ends<4>(bytes, size, byte);
  if (size >= 2) return byte_mask_of_ends<2>(bytes, size, byte);
  return std::uint64_t{size == 1 && *bytes == byte};
}

#endif

inline std::uint64_t byte_mask(const char* bytes, std::size_t size, char byte) {
#ifdef ZEPH_SCAN_SSE2
  return byte_mask_sse2(bytes, size, byte);
#else
  return byte_mask_portable(bytes, size, byte);
#endif
}

// The place of the lowest and of the highest bit of a mask that is not 0.
inline std::size_t lowest_place(std::uint64_t mask) {
  return static_cast<std::size_t>(__builtin_ctzll(mask));
}
inline std::size_t highest_place(std::uint64_t mask) {
  return static_cast<std::size_t>(63 - __builtin_clzll(mask));
}

}  // namespace zeph

#endif  // ZEPH_SCAN_BYTE_MASK_H
