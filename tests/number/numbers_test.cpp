#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "number/number_harness.h"
#include "number/real_format_table.h"
#include "support/stdout_capture.h"
#include "support/table.h"

using namespace Orbane;
using namespace zeph_test;

namespace {

// 255 bytes without a buffer of the caller's, any number with one.
template <typename Extract>
void expect_lenient_limits(Extract extract, const std::string& message) {
  const GuardedText text(std::string(254, '0') + "7" + std::string(45, 'x'), End::bare);
  const GuardedBuffer work(301);
  EXPECT_EQ(extract(text.data(), 0, 255), 7);
  for (const int count : {256, INT_MAX, -1, INT_MIN}) {
    StdoutCapture capture;
    EXPECT_EQ(extract(text.data(), 0, count), 0);
    EXPECT_EQ(capture.text(), banner(message));
  }
  StdoutCapture capture;
  EXPECT_EQ(extract(text.data(), 0, -1, work.data()), 0);
  EXPECT_TRUE(work.untouched());
  EXPECT_EQ(extract(text.data(), 250, 5, work.data()), 7);
  EXPECT_TRUE(work.untouched(6));
  EXPECT_EQ(extract(text.data(), 0, 300, work.data()), 7);
  EXPECT_EQ(capture.text(), "");
}

}  // namespace

TEST(Numbers, LenientLimits) {
  expect_lenient_limits([](auto... arguments) { return Zeph_Ext_Int_From_Str(arguments...); },
                        "[Zeph] Ext_Int_From_Str Size Error");
  expect_lenient_limits([](auto... arguments) { return Zeph_Ext_Dbl_From_Str(arguments...); },
                        "[ZEPH_API] Ext_Dbl_From_Str Size Error");
}

TEST(Numbers, NegativeCountsAreRefusedWorkBuffers) {
  for (const int count : {-1, INT_MIN}) {
    StdoutCapture capture;
    int value = 7;
    double real = 7;
    EXPECT_FALSE(Zeph_To_Int("12", &value, 0, count));
    EXPECT_FALSE(Zeph_To_Double("12", &real, 0, count));
    EXPECT_EQ(value + real, 14);
    EXPECT_EQ(capture.text(), banners(2, "[Zeph] Memory calloc Fail in Zeph_Prepare_Mem"));
  }
}

TEST(Numbers, Integers) {
  int value = 0;
  EXPECT_TRUE(Zeph_To_Int("rpm=1200", &value, 4, 4));
  EXPECT_EQ(value, 1200);
  EXPECT_FALSE(Zeph_To_Int("-12a", &value));
  EXPECT_EQ(value, 12) << "the digits in front, without a sign";
  EXPECT_TRUE(Zeph_To_Int("4294967297", 5, 5, &value)) << "two equal bounds are none";
  EXPECT_EQ(value, 1);
  EXPECT_FALSE(Zeph_To_Int("-0x80000000", 0, 9, &value));
  EXPECT_EQ(value, INT_MIN) << "stored, though outside the bounds";
  EXPECT_EQ(Zeph_Int_Check("-0x"), 2);
  EXPECT_EQ(Zeph_HexStr_to_DecInt("1\00023", 0, 3), 0x12);
  EXPECT_EQ(Zeph_HexStr_to_DecInt("12", 1, INT_MIN), 0);
  EXPECT_EQ(Zeph_HexStr_to_DecInt("0x1F, 2"), 0x1F2);
}

TEST(Numbers, Reals) {
  each_row(judged_texts,
           [](const auto& row) { expect_read(row.text, row.code, row.value, row.lenient); });
  each_row(real_bounds, [](const auto& row) {
    double value = before;
    EXPECT_EQ(Zeph_To_Double("2.5", row.minimum, row.maximum, &value), row.passes);
    expect_same(value, 2.5);
  });
  each_row(precision_rows, [](const auto& row) { expect_written(row.value, row.code, row.text); });
}

TEST(Numbers, EveryPowerOfTen) {
  if (!runtime_is_exact()) GTEST_SKIP() << "the runtime does not round to nearest";
  for (int exponent = -400; exponent <= 400; ++exponent) {
    for (const std::string digits :
         {"1", "9007199254740993", "18446744073709551615", "9999999999999999999"}) {
      const std::string text = digits + "e" + std::to_string(exponent);
      const double value = std::strtod(text.c_str(), nullptr);
      expect_read(text, exponent < 0 ? 2 : 1, value, value);
    }
  }
}
