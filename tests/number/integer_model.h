// Integer texts by the plainest loop.
#ifndef ZEPH_TESTS_NUMBER_INTEGER_MODEL_H
#define ZEPH_TESTS_NUMBER_INTEGER_MODEL_H

#include <cstddef>
#include <cstdint>
#include <string>

namespace zeph_test {

const std::string hex_digits = "0123456789ABCDEFabcdef";

// The digits at the start of a text, as many as there are, modulo 2^32.
inline std::uint32_t wrapped(const std::string& text, const std::string& digits) {
  std::uint32_t word = 0;
  for (const char byte : text) {
    const std::size_t digit = digits.find(byte);
    if (digit == std::string::npos) break;
    word = word * (digits.size() > 10 ? 16 : 10) +
           static_cast<std::uint32_t>(digit < 16 ? digit : digit - 6);
  }
  return word;
}

struct Reading {
  bool accepted;
  std::uint32_t word;
};

// An optional '-', then decimal digits or, behind "0x" or "0X", hexadecimal ones; any number of
// them.
inline Reading read_integer(std::string text, bool with_hex) {
  const bool negative = text.rfind("-", 0) == 0;
  if (negative) text.erase(0, 1);
  const bool hex = with_hex && (text.rfind("0x", 0) == 0 || text.rfind("0X", 0) == 0);
  if (hex) text.erase(0, 2);
  const std::string digits = hex ? hex_digits : "0123456789";
  const bool accepted = text.find_first_not_of(digits) == std::string::npos;
  const std::uint32_t word = wrapped(text, digits);
  return {accepted, negative && accepted ? 0 - word : word};
}

}  // namespace zeph_test

#endif  // ZEPH_TESTS_NUMBER_INTEGER_MODEL_H
