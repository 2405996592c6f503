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

// What a byte is worth as a digit, `base` or more for a foreign byte.
template <unsigned int base>
constexpr unsigned int digit_value(char byte) {
  if constexpr (base == 10) return digit_of(byte);
  return hex_values[static_cast<unsigned char>(byte)];
}

// Folds the whole body and negates the result. The value is stored before the next byte is read,
// so that at a foreign byte it holds the digits in front of it. All arithmetic runs modulo 2^32,
// and an 8-bit value is its low byte.
template <unsigned int base, typename Value>
bool fold_body(const char* body, bool negative, Value& value) {
  unsigned int word = 0;
  for (; *body != '\0'; ++body) {
    const unsigned int digit = digit_value<base>(*body);
    if (digit >= base) return false;
    word = word * base + digit;
    value = static_cast<Value>(word);
  }
  if (negative) value = static_cast<Value>(0 - word);
  return true;
}

bool has_hex_prefix(const char* body) {
  return body[0] == '0' && (body[1] == 'x' || body[1] == 'X');
}

// The 8-bit grammar: decimal digits alone.
bool read_small_integer(const char* text, char& value) {
  value = 0;
  const bool negative = *text == '-';
  return fold_body<10>(text + negative, negative, value);
}

// The last eight hexadecimal digits make the value, so they are looked for from the end on.
int last_hex_digits(const char* begin, const char* end) {
  unsigned int word = 0;
  for (unsigned int shift = 0; shift < 32 && end != begin;) {
    const unsigned int digit = digit_value<16>(*--end);
    if (digit == foreign) continue;
    word |= digit << shift;
    shift += 4;
  }
  return static_cast<int>(word);
}

// What the runtime's atoi reads. It is asked itself where the number may be beyond an int.
int leading_integer(const char* text) {
  const char* digits = skip_white_space(text);
  const bool negative = *digits == '-';
  if (negative || *digits == '+') ++digits;
  std::uint64_t word = 0;
  const char* const end = append_digits(digits, word);
  if (end - digits <= most_word_digits && word <= std::numeric_limits<int>::max()) {
    const auto magnitude = static_cast<int>(word);
    return negative ? -magnitude : magnitude;
  }
  const ErrorStateKeeper keeper;
  return std::atoi(text);
}

}  // namespace

bool read_integer(const char* text, int& value) {
  value = 0;
  const bool negative = *text == '-';
  const char* const body = text + negative;
  if (has_hex_prefix(body)) return fold_body<16>(body + 2, negative, value);
  return fold_body<10>(body, negative, value);
}

bool read_integer_slice(const char* text, int start, int count, int& value) {
  return read_slice(text, start, count,
                    [&](const char* slice) { return read_integer(slice, value); });
}

}  // namespace zeph

namespace Orbane {

bool Zeph_Char_Num_Check(const char* text, char minimum, char maximum, char* value) {
  const auto number = [](char byte) { return static_cast<signed char>(byte); };
  return zeph::read_small_integer(text, *value) &&
         zeph::within_bounds(number(minimum), number(*value), number(maximum));
}

int Zeph_Int_Check(const char* text) {
  int value;
  if (!zeph::read_integer(text, value)) return 0;
  return *text == '-' ? 2 : 1;
}

int Zeph_Int_Check(const std::string& text) {
  return Zeph_Int_Check(text.c_str());
}

bool Zeph_To_Int(const char* text, int* value) {
  return zeph::read_integer(text, *value);
}

bool Zeph_To_Int(const std::string& text, int* value) {
  return zeph::read_integer(text.c_str(), *value);
}

bool Zeph_To_Int(const char* text, int* value, int start, int count) {
  return zeph::read_integer_slice(text, start, count, *value);
}

bool Zeph_To_Int(const std::string& text, int* value, int start, int count) {
  return zeph::read_integer_slice(text.c_str(), start, count, *value);
}

bool Zeph_To_Int(const char* text, int minimum, int maximum, int* value) {
  return zeph::read_integer(text, *value) && zeph::within_bounds(minimum, *value, maximum);
}

bool Zeph_To_Int(const std::string& text, int minimum, int maximum, int* value) {
  return Zeph_To_Int(text.c_str(), minimum, maximum, value);
}

bool Zeph_To_Int(const char* text, int minimum, int maximum, int* value, int start, int count) {
  return zeph::read_integer_slice(text, start, count, *value) &&
         zeph::within_bounds(minimum, *value, maximum);
}

bool Zeph_To_Int(const std::string& text, int minimum, int maximum, int* value, int start,
                 int count) {
  return Zeph_To_Int(text.c_str(), minimum, maximum, value, start, count);
}

int Zeph_Ext_Int_From_Str(const char* text, int start, int count) {
  return zeph::convert_short_slice(text, start, count, "[Zeph] Ext_Int_From_Str Size Error",
                                   zeph::leading_integer);
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
