// Integers as decimal digits, eight of them by a few multiplications and none by a loop. All that
// write return the place of the terminator.
#ifndef ZEPH_FRAME_PUT_INTEGER_H
#define ZEPH_FRAME_PUT_INTEGER_H

#include <cstddef>
#include <cstdint>

#include "scan/word.h"

namespace zeph {

// The most that an int takes, terminator included.
constexpr std::size_t longest_integer = sizeof "-2147483648";

// Numbers in a row of fields, split each: the quotient, and as far above it as `shift` tells, the
// rest by the divisor. One product takes the quotients away there and puts them here.
constexpr std::uint64_t split_fields(std::uint64_t numbers, std::uint64_t quotients,
                                     std::uint64_t divisor, int shift) {
  return (numbers << shift) - quotients * ((divisor << shift) - 1);
}

// What the eight digits of a number below 10^8 are worth, the first one in the lowest byte: its
// halves, their hundreds and rests, and the tens and rests of these. x * 10486 >> 20 is x / 100
// below 10^4, x * 103 >> 10 is x / 10 below 100.
constexpr std::uint64_t split_digits(std::uint32_t number) {
  std::uint64_t parts = split_fields(number, number / 10000, 10000, 32);
  parts = split_fields(parts, (parts * 10486 >> 20) & 0x0000007F0000007F, 100, 16);
  return split_fields(parts, (parts * 103 >> 10) & 0x000F000F000F000F, 10, 8);
}
static_assert(split_digits(12345678) == 0x0807060504030201);
static_assert(split_digits(99990099) == 0x0909000009090909);

constexpr std::uint64_t digit_zeros = 0x3030303030303030;

// Writes a number below 10^8 without zeros in front, and a terminator: as the digits move down in
// the word, a zero byte comes in behind them. The last digits stand at one place in it, however
// many there are.
inline char* put_up_to_eight_digits(char* out, std::uint32_t number) {
  if (number < 10) {
    store_low_bytes<2>(out, '0' + number);
    return out + 1;
  }
  const std::uint64_t digits = split_digits(number), text = digits | digit_zeros;
  const unsigned in_front = static_cast<unsigned>(__builtin_ctzll(digits)) / 8;
  char* const end = out + (8 - in_front);
  if (in_front == 0) {
    store_word(out, text);
    *end = '\0';
  } else if (in_front <= 4) {
    store_low_bytes<4>(out, text >> 8 * in_front);
    store_low_bytes<4>(end - 3, text >> 8 * 5);
  } else {
    store_low_bytes<2>(out, text >> 8 * in_front);
    store_low_bytes<2>(end - 1, text >> 8 * 7);
  }
  return end;
}

constexpr std::uint32_t eight_digits = 100000000;

// A larger number, in at most ten digits. Few are: it stays out of their way.
[[gnu::noinline]] inline char* put_many_digits(char* out, std::uint32_t number) {
  out = put_up_to_eight_digits(out, number / eight_digits);
  store_word(out, split_digits(number % eight_digits) | digit_zeros);
  out[8] = '\0';
  return out + 8;
}

inline char* put_unsigned(char* out, std::uint32_t number) {
  const bool few = __builtin_expect(number < eight_digits, 1);
  return few ? put_up_to_eight_digits(out, number) : put_many_digits(out, number);
}

// More than eight of them.
inline bool has_many_digits(int value) {
  constexpr int most = eight_digits - 1;
  return value < -most || value > most;
}

inline char* put_integer(char* out, int value) {
  auto number = static_cast<std::uint32_t>(value);
  if (value < 0) {
    *out++ = '-';
    number = 0 - number;
  }
  return put_unsigned(out, number);
}

}  // namespace zeph

#endif  // ZEPH_FRAME_PUT_INTEGER_H
