#include <gtest/gtest.h>

#include <cerrno>
#include <climits>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "number/integer_text_table.h"
#include "number/slice_harness.h"
#include "support/guarded_buffer.h"
#include "support/table.h"
#include "zeph.h"

using namespace Orbane;
using namespace zeph_test;

namespace {

constexpr int before = -77;  // what an output holds before a call

const std::string hex_digits = "0123456789ABCDEFabcdef";

struct Reading {
  bool accepted;
  std::uint32_t word;
};

Reading model(std::string text, bool with_hex) {
  const bool negative = text.rfind("-", 0) == 0;
  if (negative) text.erase(0, 1);
  const bool hex = with_hex && (text.rfind("0x", 0) == 0 || text.rfind("0X", 0) == 0);
  if (hex) text.erase(0, 2);
  const std::size_t end = text.find_first_not_of(hex ? hex_digits : "0123456789");
  const auto word = static_cast<std::uint32_t>(
      std::strtoull(text.substr(0, end).c_str(), nullptr, hex ? 16 : 10));
  return {end == std::string::npos, negative && end == std::string::npos ? 0 - word : word};
}

bool passes(int minimum, int value, int maximum) {
  return minimum == maximum || (minimum <= value && value <= maximum);
}

void expect_as_model(const std::string& bytes) {
  SCOPED_TRACE(bytes);
  const Reading number = model(bytes, true), small = model(bytes, false);
  const auto expected = static_cast<int>(number.word);
  const auto low_byte = static_cast<signed char>(small.word);
  each_form(bytes, [&](const auto& text, auto... slice) {
    int value = before;
    EXPECT_EQ(Zeph_To_Int(text, &value, slice...), number.accepted);
    EXPECT_EQ(value, expected);
    for (const auto& [low, high] : integer_bounds) {
      value = before;
      EXPECT_EQ(Zeph_To_Int(text, low, high, &value, slice...),
                number.accepted && passes(low, expected, high));
      EXPECT_EQ(value, expected);
    }
  });
  for (const auto& [low, high] : integer_bounds) {
    char byte = before;
    EXPECT_EQ(
        Zeph_Char_Num_Check(at_edge(bytes), static_cast<char>(low), static_cast<char>(high), &byte),
        small.accepted && passes(low, low_byte, high));
    EXPECT_EQ(static_cast<signed char>(byte), low_byte);
  }
  const int code = number.accepted ? (bytes[0] == '-' ? 2 : 1) : 0;
  EXPECT_EQ(Zeph_Int_Check(at_edge(bytes)), code);
  EXPECT_EQ(Zeph_Int_Check(bytes + '\0' + "x"), code);
}

}  // namespace

TEST(IntegerText, AgreesWithTheModel) {
  each_text("-0+xX19aFg", 4, expect_as_model);
  for (const char* text : integer_texts) expect_as_model(text);
}

TEST(IntegerText, NeedsAWorkBufferForASlice) {
  expect_work_buffer<int>([](auto... arguments) { return Zeph_To_Int(arguments...); });
}

TEST(IntegerText, LenientReadsAsAtoi) {
  const auto check = [](const std::string& bytes) {
    SCOPED_TRACE(bytes);
    const auto size = static_cast<int>(bytes.size());
    const GuardedBuffer work(bytes.size() + 1);
    const int expected = std::atoi(bytes.c_str());
    errno = 33;
    EXPECT_EQ(Zeph_Ext_Int_From_Str(at_edge(bytes, End::bare), 0, size), expected);
    EXPECT_EQ(Zeph_Ext_Int_From_Str(at_edge(bytes, End::bare), 0, size, work.data()), expected);
    EXPECT_EQ(errno, 33);
    EXPECT_STREQ(work.data(), bytes.c_str());
  };
  each_text(" \t-+09x", 4, check);
  for (const char* text : lenient_texts) check(text);
  expect_lenient_limits([](auto... arguments) { return Zeph_Ext_Int_From_Str(arguments...); },
                        "[Zeph] Ext_Int_From_Str Size Error");
}

TEST(IntegerText, HexFilterSkipsWhatIsNoDigit) {
  const auto check = [](const std::string& bytes) {
    SCOPED_TRACE(bytes);
    std::string digits = "0x";
    for (const char byte : bytes) digits.append(hex_digits.find(byte) != std::string::npos, byte);
    const auto expected = static_cast<int>(model(digits, true).word);
    EXPECT_EQ(Zeph_HexStr_to_DecInt(at_edge(bytes)), expected);
    const char* const slice = at_edge("12" + bytes, End::bare);
    EXPECT_EQ(Zeph_HexStr_to_DecInt(slice, 2, static_cast<int>(bytes.size())), expected);
  };
  each_text("0xAfg9", 4, check);
  for (const char* text : hex_texts) check(text);
  EXPECT_EQ(Zeph_HexStr_to_DecInt("1\00023", 0, 3), 0x12);
  EXPECT_EQ(Zeph_HexStr_to_DecInt("12", 1, INT_MIN), 0);
}
