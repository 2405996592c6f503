// Eight bytes as one number, the first byte lowest, on every processor.
#ifndef ZEPH_SCAN_WORD_H
#define ZEPH_SCAN_WORD_H

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace zeph {

constexpr std::size_t word_size = 8;

#if defined(__BYTE_ORDER__) && __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__

inline std::uint64_t load_word(const char* from) {
  std::uint64_t word;
  std::memcpy(&word, from, word_size);
  return word;
}

inline void store_word(char* to, std::uint64_t word) {
  std::memcpy(to, &word, word_size);
}

// The first bytes of the word alone.
template <std::size_t size>
void store_low_bytes(char* to, std::uint64_t word) {
  std::memcpy(to, &word, size);
}

#else

inline std::uint64_t load_word(const char* from) {
  std::uint64_t word = 0;
  for (std::size_t i = word_size; i-- > 0;) word = word << 8 | static_cast<unsigned char>(from[i]);
  return word;
}

template <std::size_t size>
void store_low_bytes(char* to, std::uint64_t word) {
  for (std::size_t i = 0; i < size; ++i) to[i] = static_cast<char>(word >> 8 * i);
}

inline void store_word(char* to, std::uint64_t word) {
  store_low_bytes<word_size>(to, word);
}

#endif

// The same with the first byte highest.
inline std::uint64_t load_word_reversed(const char* from) {
  return __builtin_bswap64(load_word(from));
}

inline void store_word_reversed(char* to, std::uint64_t word) {
  store_word(to, __builtin_bswap64(word));
}

}  // namespace zeph

#endif  // ZEPH_SCAN_WORD_H
