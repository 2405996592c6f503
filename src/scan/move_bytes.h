// Copying and filling where most pieces are short.
#ifndef ZEPH_SCAN_MOVE_BYTES_H
#define ZEPH_SCAN_MOVE_BYTES_H

#include <cstddef>
#include <cstring>

namespace zeph {

template <std::size_t size>
struct Piece {
  char bytes[size];
};

template <std::size_t size>
Piece<size> load_piece(const char* from) {
  Piece<size> piece;
  std::memcpy(&piece, from, size);
  return piece;
}

template <std::size_t size>
void store_piece(char* to, Piece<size> piece) {
  std::memcpy(to, &piece, size);
}

// Copies `size` bytes, which are at least `half` and at most twice as many: the first and the last
// `half`. All are read before any is written, so that the places may overlap.
template <std::size_t half>
void move_ends(char* to, const char* from, std::size_t size) {
  const Piece<half> head = load_piece<half>(from), tail = load_piece<half>(from + size - half);
  store_piece(to, head);
  store_piece(to + size - half, tail);
}

// The same for 32 to 64 bytes, in pieces that fit a vector register.
inline void move_ends_32(char* to, const char* from, std::size_t size) {
  const char* const tail = from + size - 32;
  const Piece<16> a = load_piece<16>(from), b = load_piece<16>(from + 16);
  const Piece<16> c = load_piece<16>(tail), d = load_piece<16>(tail + 16);
  store_piece(to, a);
  store_piece(to + 16, b);
  store_piece(to + size - 32, c);
  store_piece(to + size - 16, d);
}

// More than 64 bytes, by a call.
void move_long(char* to, const char* from, std::size_t size);

// The twin for places that do not overlap and at least 256 bytes.
void copy_apart_avx512(char* to, const char* from, std::size_t size);

// What is copied: a text may have some KiB, a piece of many hardly has. A longer piece goes to the
// runtime: compilers know what its copy leaves alone, so that a loop keeps more in registers.
enum class Copied { text, piece };

// Copies `size` bytes; the places may overlap. Up to 64 cost no call.
template <Copied what>
[[gnu::always_inline]] inline void move_bytes_as(char* to, const char* from, std::size_t size) {
  if (size < 16) {
    if (size >= 8) {
      move_ends<8>(to, from, size);
    } else if (size >= 4) {
      move_ends<4>(to, from, size);
    } else if (size >= 2) {
      move_ends<2>(to, from, size);
    } else if (size == 1) {
      *to = *from;
    }
  } else if (size < 32) {
    move_ends<16>(to, from, size);
  } else if (size <= 64) {
    move_ends_32(to, from, size);
  } else if constexpr (what == Copied::text) {
    move_long(to, from, size);
  } else {
    std::memmove(to, from, size);
  }
}

inline void move_bytes(char* to, const char* from, std::size_t size) {
  move_bytes_as<Copied::text>(to, from, size);
}

inline void move_piece(char* to, const char* from, std::size_t size) {
  move_bytes_as<Copied::piece>(to, from, size);
}

// Fills at least `half` and at most twice as many bytes.
template <std::size_t half>
void fill_ends(char* to, int byte, std::size_t size) {
  std::memset(to, byte, half);
  std::memset(to + size - half, byte, half);
}

constexpr std::size_t most_filled_bytes = 64;

// Fills 1 to 64 bytes without a call.
inline void fill_short(char* to, int byte, std::size_t size) {
  if (__builtin_expect(size >= 16, 1)) {
    // Where the second piece starts, from the front and from the back.
    const std::size_t second = size < 32 ? size - 16 : 16;
    fill_ends<16>(to, byte, second + 16);
    fill_ends<16>(to + size - 16 - second, byte, second + 16);
  } else if (__builtin_expect(size >= 8, 1)) {
    fill_ends<8>(to, byte, size);
  } else if (size >= 4) {
    fill_ends<4>(to, byte, size);
  } else {
    *to = static_cast<char>(byte);
    to[size / 2] = to[size - 1] = *to;
  }
}

}  // namespace zeph

#endif  // ZEPH_SCAN_MOVE_BYTES_H
