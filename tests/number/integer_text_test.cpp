#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "support/guarded_buffer.h"
#include "support/refusing_heap.h"
#include "support/stdout_capture.h"
#include "support/table.h"
#include "zeph.h"

using namespace Orbane;
using namespace zeph_test;

namespace {

constexpr int before = -77;  // what an output holds before a call

// The digit's value; `base` and more for any other byte.
int digit_of(char byte) {
  const auto place = std::string("0123456789abcdef0123456789ABCDEF").find(byte);
  return place == std::string::npos ? 99 : static_cast<int>(place % 16);
}

// The grammar in 64-bit arithmetic. Returns 0, 1 or 2 as Zeph_Int_Check() does.
int model(const std::string& text, bool with_hex, std::int64_t& value) {
  const bool negative = text[0] == '-';
  std::string body = text.substr(negative);
  const bool hex = with_hex && (body.rfind("0x", 0) == 0 || body.rfind("0X", 0) == 0);
  const int base = hex ? 16 : 10;
  value = 0;
  for (const char byte : body.substr(hex ? 2 : 0)) {
    if (digit_of(byte) >= base) return 0;
    value = value * base + digit_of(byte);
  }
  if (negative) value = -value;
  return negative ? 2 : 1;
}

void expect_as_model(const std::string& bytes) {
  SCOPED_TRACE(bytes);
  const GuardedText text(bytes), bare(bytes, End::bare);
  const std::string object = bytes + '\0' + "9";
  const auto size = static_cast<int>(bytes.size());
  std::int64_t number;
  const int code = model(bytes, true, number);
  const auto wrapped = static_cast<int>(static_cast<std::uint32_t>(number));
  const bool inside = code != 0 && wrapped >= -16 && wrapped <= 100;
  int value = before;
  const auto expect = [&](bool result, bool expected) {
    EXPECT_EQ(result, expected);
    EXPECT_EQ(value, wrapped);
    value = before;
  };
  expect(Zeph_To_Int(text.data(), &value), code != 0);
  expect(Zeph_To_Int(object, &value), code != 0);
  expect(Zeph_To_Int(bare.data(), &value, 0, size), code != 0);
  expect(Zeph_To_Int(object, &value, 0, size + 2), code != 0);
  expect(Zeph_To_Int(text.data(), -16, 100, &value), inside);
  expect(Zeph_To_Int(object, -16, 100, &value), inside);
  expect(Zeph_To_Int(bare.data(), -16, 100, &value, 0, size), inside);
  expect(Zeph_To_Int(object, -16, 100, &value, 0, size), inside);
  expect(Zeph_To_Int(text.data(), 5, 5, &value), code != 0);  // equal bounds are none
  expect(Zeph_To_Int(text.data(), 9, -9, &value), false);
  EXPECT_EQ(Zeph_Int_Check(text.data()), code);
  EXPECT_EQ(Zeph_Int_Check(object), code);

  const bool accepted = model(bytes, false, number) != 0;
  const auto low_byte = static_cast<signed char>(number);
  char byte = before;
  EXPECT_EQ(Zeph_Char_Num_Check(text.data(), -9, 90, &byte),
            accepted && low_byte >= -9 && low_byte <= 90);
  EXPECT_EQ(static_cast<signed char>(byte), low_byte);
  EXPECT_EQ(Zeph_Char_Num_Check(text.data(), 5, 5, &byte), accepted);
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

TEST(IntegerText, LenientReadsAsAtoi) {
  const auto check = [](const std::string& bytes) {
    SCOPED_TRACE(bytes);
    const GuardedText text(bytes, End::bare);
    const auto size = static_cast<int>(bytes.size());
    const GuardedBuffer work(bytes.size() + 1);
    const int expected = std::atoi(bytes.c_str());
    errno = 33;
    EXPECT_EQ(Zeph_Ext_Int_From_Str(text.data(), 0, size, work.data()), expected);
    EXPECT_STREQ(work.data(), bytes.c_str());
    EXPECT_EQ(errno, 33);
    const int limited = size <= 255 ? Zeph_Ext_Int_From_Str(text.data(), 0, size) : expected;
    EXPECT_EQ(limited, expected);
  };
  each_text(" \t-+09x", 4, check);
  for (const char* text :
       {"2147483647", "-2147483648", "4294967297", "\v\f\r\n12", "0x1F", "99999999999999999999"}) {
    check(text);
  }
  check(std::string(254, '0') + "7");
  check(std::string(300, '1'));
}

TEST(IntegerText, RefusalsAreReported) {
  REQUIRE_REFUSING_HEAP;
  RefusingHeap heap;
  const GuardedBuffer work(1);
  for (const int count : {256, -1, INT_MIN}) {
    heap.refuse_calloc(1);
    StdoutCapture capture;
    int value = before;
    EXPECT_FALSE(Zeph_To_Int("12", &value, 0, count));
    EXPECT_EQ(value, before);
    EXPECT_EQ(Zeph_Ext_Int_From_Str("7", 0, count), 0);
    EXPECT_EQ(Zeph_Ext_Int_From_Str("7", 0, std::min(count, -1), work.data()), 0);
    EXPECT_TRUE(work.untouched());
    EXPECT_EQ(capture.text(), banner("[Zeph] Memory calloc Fail in Zeph_Prepare_Mem") +
                                  banner("[Zeph] Ext_Int_From_Str Size Error"));
  }
}

TEST(IntegerText, HexFilterAgreesWithAModel) {
  const auto check = [](const std::string& bytes) {
    SCOPED_TRACE(bytes);
    std::uint32_t word = 0;
    for (const char byte : bytes) {
      if (digit_of(byte) < 16) word = word * 16 + static_cast<std::uint32_t>(digit_of(byte));
    }
    const GuardedText bare(bytes, End::bare);
    EXPECT_EQ(Zeph_HexStr_to_DecInt(GuardedText(bytes).data()), static_cast<int>(word));
    EXPECT_EQ(Zeph_HexStr_to_DecInt(bare.data(), 0, static_cast<int>(bytes.size())),
              static_cast<int>(word));
  };
  each_text("0xAfg9", 4, check);
  for (const char* text :
       {"FFFFFFFF", "1FFFFFFFF", "12 34 56 78 9A", "-1", "@G`g/:", "\xC1\xE6z"}) {
    check(text);
  }
  EXPECT_EQ(Zeph_HexStr_to_DecInt("91\0002", 1, 3), 0x12);
  EXPECT_EQ(Zeph_HexStr_to_DecInt("12", 1, INT_MIN), 0);
}
