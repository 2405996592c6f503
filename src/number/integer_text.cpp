#include "number/integer_text.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "number/bounds.h"
#include "number/digits.h"
#include "number/slices.h"
#include "platform/platform.h"
#include "zeph.h"

namespace zeph {
namespace {

// What a byte is worth as a hexadecimal digit; `foreign` for every other byte.
constexpr unsigned int foreign = 16;
constexpr auto hex_values = [] {
  std::array<unsigned char, 256> values{};
  for (unsigned char& value : values) value = foreign;
  for (unsigned char i = 0; i < 10; ++i) values['0' + i] = i;
  for (unsigned char i = 0; i < 6; ++i) {
    values['A' + i] = static_cast<unsigned char>(10 + i);
    values['a' + i] = static_cast<unsigned char>(10 + i);
  }
  return values;
}();

// What a text holds: the value, modulo 2^32, and whether all of it is a number. At a foreign byte
// the value is that of the digits in front of it, without a sign. It travels in a register.
struct Integer {
  unsigned int word;
  bool whole;
};

inline Integer whole_integer(unsigned int word, bool negative) {
  const unsigned int sign = negative;
  return {(word ^ (0 - sign)) + sign, true};
}

// Stores the value; an 8-bit one is its low byte.
template <typename Value>
inline bool store(Integer integer, Value& value) {
  value = static_cast<Value>(integer.word);
  return integer.whole;
}

template <typename... End>
bool has_hex_prefix(const char* body, End... end) {
  return byte_at(body, end...) == '0' && (byte_at(body + 1, end...) | 0x20) == 'x';
}

// The `count` bytes at `text`, one to three, as digits; declines if one of them is none. How many
// they are takes no branch, which would be guessed wrong for every other text.
inline bool read_few_digits(const char* text, std::size_t count, unsigned int& word) {
  const bool has_tens = count > 1, has_hundreds = count > 2;
  const char* const last = text + count - 1;
  const unsigned int ones = digit_of(*last), tens = digit_of(*(last - has_tens));
  const unsigned int hundreds = digit_of(*text);
  word = ones + (has_tens ? tens * 10 : 0) + (has_hundreds ? hundreds * 100 : 0);
  return ((ones > 9) | (tens > 9) | (hundreds > 9)) == 0;
}

// The 8-bit grammar: decimal digits alone. Nearly all numbers within 8 bits have up to three.
Integer read_small_integer(const char* text) {
  constexpr std::size_t few = 3;
  const bool negative = *text == '-';
  const std::size_t count = strnlen(text, negative + few + 1) - negative;
  unsigned int word = 0;
  if (count - 1 < few && read_few_digits(text + negative, count, word)) {
    return whole_integer(word, negative);
  }
  word = 0;
  text = append_digits(text + negative, word);
  return *text == '\0' ? whole_integer(word, negative) : Integer{word, false};
}

// Hexadecimal digits, or a foreign byte behind the decimal ones, whose number is `word`. It stays
// out of the way of the decimal numbers. The text is not empty.
template <typename... End>
[[gnu::noinline]] Integer read_other_integer(const char* text, unsigned int word, End... end) {
  const bool negative = *text == '-';
  const char* body = text + negative;
  if (!has_hex_prefix(body, end...)) return {word, false};
  word = 0;
  for (body += 2; byte_at(body, end...) != '\0'; ++body) {
    const unsigned int digit = hex_values[static_cast<unsigned char>(*body)];
    if (digit == foreign) return {word, false};
    word = word * 16 + digit;
  }
  return whole_integer(word, negative);
}

// The last eight hexadecimal digits make the value, so they are looked for from the end on.
int last_hex_digits(const char* begin, const char* end) {
  unsigned int word = 0, shift = 0;
#pragma GCC unroll 4
  while (end != begin) {
    const unsigned int digit = hex_values[static_cast<unsigned char>(*--end)];
    if (digit == foreign) continue;
    word |= digit << shift;
    shift += 4;
    if (shift == 32) break;
  }
  return static_cast<int>(word);
}

// What the runtime's atoi reads in most slices: declines where white space or a '+' comes first, no
// digit, or more than an int.
inline bool try_leading_integer(const char* text, const char* end, int& value) {
  const bool negative = byte_at(text, end) == '-';
  const char* const begin = text + negative;
  std::uint64_t word = 0;
  const char* const stop = append_all_digits(begin, word, end);
  if (stop == begin || stop - begin > most_word_digits || word > std::numeric_limits<int>::max()) {
    return false;
  }
  const auto magnitude = static_cast<int>(word);
  value = negative ? -magnitude : magnitude;
  return true;
}

// The same for any byte text. The runtime is asked itself where the number may be beyond an int.
int leading_integer(const char* text) {
  const char* digits = skip_white_space(text);
  const bool negative = *digits == '-';
  if (negative || *digits == '+') ++digits;
  std::uint64_t word = 0;
  const char* const end = append_many_digits(digits, word);
  if (end - digits <= most_word_digits && word <= std::numeric_limits<int>::max()) {
    const auto magnitude = static_cast<int>(word);
    return negative ? -magnitude : magnitude;
  }
  const ErrorStateKeeper keeper;
  return std::atoi(text);
}

inline Integer read_integer(const char* text) {
  const bool negative = *text == '-';
  unsigned int word = 0;
  const char* const stop = append_digits(text + negative, word);
  if (*stop != '\0') return read_other_integer(text, word);
  return whole_integer(word, negative);
}

// The same for a text that ends at `end`, or at a zero byte in front of it.
inline Integer read_integer(const char* text, const char* end) {
  const bool negative = byte_at(text, end) == '-';
  std::uint64_t digits = 0;
  const char* const stop = append_all_digits(text + negative, digits, end);
  const auto word = static_cast<unsigned int>(digits);
  if (byte_at(stop, end) != '\0') return read_other_integer(text, word, end);
  return whole_integer(word, negative);
}

// The test alone needs no value.
inline int judge_integer(const char* text) {
  const bool negative = *text == '-';
  const char* const body = text + negative;
  if (*skip_digits(body) != '\0') {
    if (!has_hex_prefix(body) || !read_other_integer(text, 0).whole) return 0;
  }
  return negative ? 2 : 1;
}

bool read_slice_within_bounds(const char* text, int minimum, int maximum, int& value, int start,
                              int count) {
  return read_slice(text, start, count, [&](const char* begin, const char* end, char*) {
    return store(read_integer(begin, end), value) && within_bounds(minimum, value, maximum);
  });
}

}  // namespace

bool read_integer_slice(const char* text, int start, int count, int& value) {
  return read_slice(text, start, count, [&](const char* begin, const char* end, char*) {
    return store(read_integer(begin, end), value);
  });
}

}  // namespace zeph

namespace Orbane {

bool Zeph_Char_Num_Check(const char* text, char minimum, char maximum, char* value) {
  const auto number = [](char byte) { return static_cast<signed char>(byte); };
  return zeph::store(zeph::read_small_integer(text), *value) &&
         zeph::within_bounds(number(minimum), number(*value), number(maximum));
}

int Zeph_Int_Check(const char* text) {
  return zeph::judge_integer(text);
}

int Zeph_Int_Check(const std::string& text) {
  return zeph::judge_integer(text.c_str());
}

bool Zeph_To_Int(const char* text, int* value) {
  return zeph::store(zeph::read_integer(text), *value);
}

bool Zeph_To_Int(const std::string& text, int* value) {
  return zeph::store(zeph::read_integer(text.c_str()), *value);
}

bool Zeph_To_Int(const char* text, int* value, int start, int count) {
  return zeph::read_integer_slice(text, start, count, *value);
}

bool Zeph_To_Int(const std::string& text, int* value, int start, int count) {
  return zeph::read_integer_slice(text.c_str(), start, count, *value);
}

bool Zeph_To_Int(const char* text, int minimum, int maximum, int* value) {
  return zeph::store(zeph::read_integer(text), *value) &&
         zeph::within_bounds(minimum, *value, maximum);
}

bool Zeph_To_Int(const std::string& text, int minimum, int maximum, int* value) {
  return zeph::store(zeph::read_integer(text.c_str()), *value) &&
         zeph::within_bounds(minimum, *value, maximum);
}

bool Zeph_To_Int(const char* text, int minimum, int maximum, int* value, int start, int count) {
  return zeph::read_slice_within_bounds(text, minimum, maximum, *value, start, count);
}

bool Zeph_To_Int(const std::string& text, int minimum, int maximum, int* value, int start,
                 int count) {
  return zeph::read_slice_within_bounds(text.c_str(), minimum, maximum, *value, start, count);
}

int Zeph_Ext_Int_From_Str(const char* text, int start, int count) {
  return zeph::convert_short_slice(text, start, count, "[Zeph] Ext_Int_From_Str Size Error",
                                   zeph::try_leading_integer, zeph::leading_integer);
}

int Zeph_Ext_Int_From_Str(const char* text, int start, int count, char* buffer) {
  return zeph::convert_slice(text, start, count, buffer, zeph::leading_integer);
}

int Zeph_HexStr_to_DecInt(const char* text) {
  return zeph::last_hex_digits(text, text + std::strlen(text));
}

int Zeph_HexStr_to_DecInt(const char* text, int start, int count) {
  if (count <= 0) return 0;
  return zeph::last_hex_digits(text + start, text + start + count);
}

}  // namespace Orbane
