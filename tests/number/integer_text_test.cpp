#include <gtest/gtest.h>

#include <cerrno>
#include <climits>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "support/guarded_buffer.h"
#include "support/refusing_heap.h"
#include "support/stdout_capture.h"
#include "support/table.h"
#include "zeph.h"

using namespace Orbane;
using namespace zeph_test;

namespace {

const char no_memory[] = "[Zeph] Memory calloc Fail in Zeph_Prepare_Mem";
constexpr int before = -77;  // what an output holds before a call

struct Reading {
  bool accepted;
  std::int64_t value;
};

int digit_of(char byte, int base) {
  static const std::string digits = "0123456789abcdef0123456789ABCDEF";
  const auto place = digits.find(byte);
  const int digit = place == std::string::npos ? base : static_cast<int>(place % 16);
  return digit < base ? digit : -1;
}

// The grammar in 64-bit arithmetic.
Reading model(const std::string& text, bool with_hex) {
  const bool negative = text.substr(0, 1) == "-";
  std::string body = text.substr(negative ? 1 : 0);
  const std::string prefix = body.substr(0, 2);
  const bool hex = with_hex && (prefix == "0x" || prefix == "0X");
  if (hex) body.erase(0, 2);
  std::int64_t value = 0;
  for (const char byte : body) {
    const int digit = digit_of(byte, hex ? 16 : 10);
    if (digit < 0) return {false, value};
    value = value * (hex ? 16 : 10) + digit;
  }
  return {true, negative ? -value : value};
}

void expect_as_model(const std::string& bytes) {
  SCOPED_TRACE(bytes);
  const GuardedText guarded(bytes);
  const char* const text = guarded.data();
  const Reading number = model(bytes, true);
  const auto expected = static_cast<int>(static_cast<std::uint32_t>(number.value));
  int value = before;
  EXPECT_EQ(Zeph_To_Int(text, &value), number.accepted);
  EXPECT_EQ(value, expected);
  EXPECT_EQ(Zeph_Int_Check(text), number.accepted ? (bytes[0] == '-' ? 2 : 1) : 0);
  value = before;
  EXPECT_EQ(Zeph_To_Int(text, -16, 100, &value),
            number.accepted && expected >= -16 && expected <= 100);
  EXPECT_EQ(value, expected);

  const Reading small = model(bytes, false);
  const auto low_byte = static_cast<signed char>(small.value);
  char byte = before;
  EXPECT_EQ(Zeph_Char_Num_Check(text, -9, 90, &byte),
            small.accepted && low_byte >= -9 && low_byte <= 90);
  EXPECT_EQ(static_cast<signed char>(byte), low_byte);
}

std::uint32_t hex_model(const std::string& bytes) {
  std::uint32_t word = 0;
  for (const char byte : bytes) {
    const int digit = digit_of(byte, 16);
    if (digit >= 0) word = word * 16 + static_cast<std::uint32_t>(digit);
  }
  return word;
}

}  // namespace

TEST(IntegerText, AgreesWithA64BitModel) {
  each_text("-0+xX19aFg", 4, expect_as_model);
  for (const char* text : {" 5", "5 ", "2147483647", "2147483648", "-2147483648", "4294967297",
                           "0xFFFFFFFF", "0x100000000", "-0x80000000", "98765432109876543", "300",
                           "-200", "200", "128", "-128", "\xB2", "5\x80"}) {
    expect_as_model(text);
  }
}

TEST(IntegerText, Bounds) {
  const struct {
    const char* why;
    int minimum, maximum;
    bool passes;
  } rows[] = {
      {"both ends are allowed", 7, 9, true},
      {"the upper end", 5, 7, true},
      {"equal bounds are none", 9, 9, true},
      {"below", 8, 9, false},
      {"above", INT_MIN, 6, false},
      {"none fits between", 9, 5, false},
      {"crossed around the value", 8, 6, false},
  };
  each_row(rows, [](const auto& row) {
    int value = before;
    EXPECT_EQ(Zeph_To_Int("7", row.minimum, row.maximum, &value), row.passes);
    EXPECT_EQ(value, 7);
    const auto low = static_cast<char>(row.minimum < -128 ? -128 : row.minimum);
    char byte = before;
    EXPECT_EQ(Zeph_Char_Num_Check("7", low, static_cast<char>(row.maximum), &byte), row.passes);
    EXPECT_EQ(byte, 7);
    value = before;
    EXPECT_EQ(Zeph_To_Int("a7b", row.minimum, row.maximum, &value, 1, 1), row.passes);
    EXPECT_EQ(value, 7);
  });
}

TEST(IntegerText, StringsEndAtAZeroByte) {
  const std::string text("12\0x", 4);
  int value = before;
  EXPECT_EQ(Zeph_Int_Check(text), 1);
  EXPECT_TRUE(Zeph_To_Int(text, &value));
  EXPECT_EQ(value, 12);
  EXPECT_FALSE(Zeph_To_Int(text, 13, 20, &value));
  EXPECT_TRUE(Zeph_To_Int(text, &value, 1, 3));  // the slice holds the zero byte
  EXPECT_EQ(value, 2);
  EXPECT_FALSE(Zeph_To_Int(text, 3, 20, &value, 1, 3));
}

TEST(IntegerText, Slices) {
  const struct {
    const char* why;
    int start, count;
    bool accepted;
    int value;
  } rows[] = {
      {"digits between letters", 2, 3, true, 123}, {"nothing at all", 2, 0, true, 0},
      {"up to a letter", 3, 3, false, 23},         {"to the last byte", 7, 2, true, 45},
      {"behind the last byte", 9, 0, true, 0},
  };
  const GuardedText text("ab123cd45", End::bare);
  each_row(rows, [&](const auto& row) {
    int value = before;
    EXPECT_EQ(Zeph_To_Int(text.data(), &value, row.start, row.count), row.accepted);
    EXPECT_EQ(value, row.value);
    EXPECT_EQ(Zeph_To_Int(text.data(), -1, 200, &value, row.start, row.count), row.accepted);
  });
}

TEST(IntegerText, SliceWithoutAWorkBufferIsReported) {
  REQUIRE_REFUSING_HEAP;
  RefusingHeap heap;
  for (const int count : {2, -1, INT_MIN}) {
    heap.refuse_calloc(1);
    StdoutCapture capture;
    int value = before;
    EXPECT_FALSE(Zeph_To_Int("12", &value, 0, count));
    EXPECT_EQ(value, before);
    EXPECT_EQ(heap.callocs(), count < 0 ? 0 : 1);
    EXPECT_EQ(capture.text(), banner(no_memory));
  }
}

TEST(IntegerText, LenientReadsAsAtoi) {
  const auto check = [](const std::string& bytes) {
    SCOPED_TRACE(bytes);
    const GuardedText text(bytes, End::bare);
    const auto size = static_cast<int>(bytes.size());
    const GuardedBuffer work(bytes.size() + 1);
    errno = 33;
    EXPECT_EQ(Zeph_Ext_Int_From_Str(text.data(), 0, size), std::atoi(bytes.c_str()));
    errno = 33;
    EXPECT_EQ(Zeph_Ext_Int_From_Str(text.data(), 0, size, work.data()), std::atoi(bytes.c_str()));
    EXPECT_STREQ(work.data(), bytes.c_str());
  };
  each_text(" \t-+09x", 4, check);
  for (const char* text :
       {"2147483647", "-2147483647", "\v\f\r\n12", "0x1F", "007", "1234567890"}) {
    check(text);
  }
  errno = 33;
  EXPECT_EQ(Zeph_Ext_Int_From_Str("99999999999999999999", 0, 20),
            std::atoi("99999999999999999999"));
  errno = 33;
  Zeph_Ext_Int_From_Str("99999999999999999999", 0, 20);
  EXPECT_EQ(errno, 33);
}

TEST(IntegerText, LenientLimits) {
  const std::string zeros(300, '0');
  const GuardedText text(zeros.substr(0, 254) + "7" + zeros.substr(0, 45), End::bare);
  EXPECT_EQ(Zeph_Ext_Int_From_Str(text.data(), 0, 255), 7);
  const std::string message = "[Zeph] Ext_Int_From_Str Size Error";
  for (const int count : {256, INT_MAX, -1, INT_MIN}) {
    StdoutCapture capture;
    EXPECT_EQ(Zeph_Ext_Int_From_Str(text.data(), 254, count), 0);
    EXPECT_EQ(capture.text(), banner(message));
  }
  const GuardedBuffer work(301);
  StdoutCapture capture;
  EXPECT_EQ(Zeph_Ext_Int_From_Str(text.data(), 0, -1, work.data()), 0);
  EXPECT_TRUE(work.untouched());
  EXPECT_EQ(Zeph_Ext_Int_From_Str(text.data(), 250, 5, work.data()), 7);
  EXPECT_TRUE(work.untouched(6));
  const int beyond_an_int = Zeph_Ext_Int_From_Str(text.data(), 0, 300, work.data());
  EXPECT_EQ(beyond_an_int, std::atoi(work.data()));
  EXPECT_EQ(std::strlen(work.data()), 300U);
  EXPECT_EQ(capture.text(), "");
}

TEST(IntegerText, HexFilterAgreesWithAModel) {
  const auto check = [](const std::string& bytes) {
    SCOPED_TRACE(bytes);
    const auto expected = static_cast<int>(hex_model(bytes));
    EXPECT_EQ(Zeph_HexStr_to_DecInt(GuardedText(bytes).data()), expected);
    const GuardedText bare(bytes, End::bare);
    EXPECT_EQ(Zeph_HexStr_to_DecInt(bare.data(), 0, static_cast<int>(bytes.size())), expected);
  };
  each_text("0xAfg9", 4, check);
  for (const char* text : {"FFFFFFFF", "1FFFFFFFF", "12 34 56 78 9A", "-1", "@G`g/:",
                           "\xC1\xE6"
                           "1"}) {
    check(text);
  }
  EXPECT_EQ(Zeph_HexStr_to_DecInt("1\0002", 0, 3), 0x12);
  EXPECT_EQ(Zeph_HexStr_to_DecInt("12345", 1, 3), 0x234);
  EXPECT_EQ(Zeph_HexStr_to_DecInt("12", 1, 0), 0);
  EXPECT_EQ(Zeph_HexStr_to_DecInt("12", 1, INT_MIN), 0);
}
