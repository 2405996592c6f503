// One number, read through all forms of the readers or written, and held against what it should be;
// integer texts by the plainest loop.
#ifndef ZEPH_TESTS_NUMBER_NUMBER_HARNESS_H
#define ZEPH_TESTS_NUMBER_NUMBER_HARNESS_H

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "support/guarded_buffer.h"
#include "zeph.h"

namespace zeph_test {

constexpr double before = -77.0;  // what an output holds before a call

// `check(text, slice...)` for byte texts and Strings, which end at a zero byte, and their slices.
template <typename Check>
void each_form(const std::string& bytes, Check check) {
  const auto size = static_cast<int>(bytes.size());
  const std::string ended = bytes + '\0' + "1";
  check(static_cast<const char*>(GuardedText(bytes).data()));
  check(ended);
  check(static_cast<const char*>(GuardedText("12" + bytes, End::bare).data()), 2, size);
  check("12" + ended, 2, size + 2);
}

// Equal to the last bit, so that 0.0 is not -0.0.
inline void expect_same(double value, double expected) {
  EXPECT_EQ(std::memcmp(&value, &expected, sizeof value), 0) << value << " is not " << expected;
}

// The code and the value of a real-number text by the strict readers, and by the lenient ones.
inline void expect_read(const std::string& bytes, int code, double expected, double lenient) {
  SCOPED_TRACE(bytes);
  errno = 33;
  EXPECT_EQ(Orbane::Zeph_Double_Check(GuardedText(bytes).data()), code);
  EXPECT_EQ(Orbane::Zeph_Double_Check(bytes + '\0' + "x"), code);
  each_form(bytes, [&](const auto& text, auto... slice) {
    double value = before;
    EXPECT_EQ(Orbane::Zeph_To_Double(text, &value, slice...), code != 0);
    expect_same(value, expected);
    value = before;
    EXPECT_EQ(Orbane::Zeph_To_Double(text, -4.0, 5.0, &value, slice...),
              code != 0 && expected >= -4.0 && expected <= 5.0);
    expect_same(value, expected);
  });
  const auto size = static_cast<int>(bytes.size());
  const GuardedText slice(bytes, End::bare);
  const GuardedBuffer work(bytes.size() + 1);
  if (size <= 255) expect_same(Orbane::Zeph_Ext_Dbl_From_Str(slice.data(), 0, size), lenient);
  expect_same(Orbane::Zeph_Ext_Dbl_From_Str(slice.data(), 0, size, work.data()), lenient);
  EXPECT_EQ(work.data(), bytes);
  EXPECT_EQ(errno, 33);
}

inline void expect_written(double value, int code, const std::string& expected) {
  const auto convert = [&](char* out) { Orbane::Zeph_Conv_Dbl_To_Str(value, code, out); };
  EXPECT_EQ(left_in_room(64, convert), expected) << value << ", " << code;
}

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

// Some runtimes are a bit off in the last place, where ours is not.
inline bool runtime_is_exact() {
  double scanned = 0.0;
  std::sscanf("1e126", "%lf", &scanned);
  return scanned == 1e126 && std::strtod("1e126", nullptr) == 1e126;
}

}  // namespace zeph_test

#endif  // ZEPH_TESTS_NUMBER_NUMBER_HARNESS_H
