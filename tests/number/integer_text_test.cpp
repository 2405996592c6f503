#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <string>

#include "support/guarded_buffer.h"
#include "support/stdout_capture.h"
#include "zeph.h"

using namespace Orbane;
using namespace zeph_test;

namespace {

// 255 bytes without a buffer of the caller's, any number with one.
template <typename Extract>
void expect_lenient_limits(Extract extract, const std::string& message) {
  const GuardedText text(std::string(254, '0') + "7" + std::string(45, 'x'), End::bare);
  EXPECT_EQ(extract(text.data(), 0, 255), 7);
  for (const int count : {256, INT_MAX, -1, INT_MIN}) {
    StdoutCapture capture;
    EXPECT_EQ(extract(text.data(), 0, count), 0);
    EXPECT_EQ(capture.text(), banner(message));
  }
  const GuardedBuffer work(301);
  StdoutCapture capture;
  EXPECT_EQ(extract(text.data(), 0, -1, work.data()), 0);
  EXPECT_TRUE(work.untouched());
  EXPECT_EQ(extract(text.data(), 250, 5, work.data()), 7);
  EXPECT_TRUE(work.untouched(6));
  EXPECT_EQ(extract(text.data(), 0, 300, work.data()), 7);
  EXPECT_EQ(std::strlen(work.data()), 300u);
  EXPECT_EQ(capture.text(), "");
}

}  // namespace

TEST(IntegerText, LenientLimits) {
  expect_lenient_limits([](auto... arguments) { return Zeph_Ext_Int_From_Str(arguments...); },
                        "[Zeph] Ext_Int_From_Str Size Error");
  expect_lenient_limits([](auto... arguments) { return Zeph_Ext_Dbl_From_Str(arguments...); },
                        "[ZEPH_API] Ext_Dbl_From_Str Size Error");
}

TEST(IntegerText, HexFilterSkipsWhatIsNoDigit) {
  EXPECT_EQ(Zeph_HexStr_to_DecInt("1\00023", 0, 3), 0x12);
  EXPECT_EQ(Zeph_HexStr_to_DecInt("12", 1, INT_MIN), 0);
  EXPECT_EQ(Zeph_HexStr_to_DecInt("0x1F, 2"), 0x1F2);
}

TEST(IntegerText, Rows) {
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
}
