#include <climits>

#include "number/number_harness.h"
#include "support/fold.h"
#include "support/stdout_capture.h"

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
    const auto refused = [&] { EXPECT_EQ(extract(text.data(), 0, count), 0); };
    EXPECT_EQ(stdout_of(refused), banner(message));
  }
  const auto with_a_buffer = [&] {
    EXPECT_EQ(extract(text.data(), 0, -1, work.data()), 0);
    EXPECT_TRUE(work.untouched());
    EXPECT_EQ(extract(text.data(), 250, 5, work.data()), 7);
    EXPECT_TRUE(work.untouched(6));
    EXPECT_EQ(extract(text.data(), 0, 300, work.data()), 7);
  };
  EXPECT_EQ(stdout_of(with_a_buffer), "");
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
    const auto refused = [count] {
      int value = 7;
      double real = 7;
      EXPECT_FALSE(Zeph_To_Int("12", &value, 0, count));
      EXPECT_FALSE(Zeph_To_Double("12", &real, 0, count));
      EXPECT_EQ(value + real, 14);
      EXPECT_EQ(Zeph_HexStr_to_DecInt("12", 1, count), 0);
    };
    EXPECT_EQ(stdout_of(refused), banner("[Zeph] Memory calloc Fail in Zeph_Prepare_Mem", 2));
  }
}

// The digits behind the written ones come within 2^-26 of a half, from both sides.
TEST(Numbers, WrittenNearTheMiddle) {
  if (!runtime_is_exact()) GTEST_SKIP() << "the runtime does not round to nearest";
  for (const double value : {253.275540565, 43.1682864275, 7.23029181285, 53.6071083625}) {
    expect_written(value, -10, printed("%.10e", value));
  }
}

TEST(Numbers, EveryPowerOfTen) {
  if (!runtime_is_exact()) GTEST_SKIP() << "the runtime does not round to nearest";
  for (int exponent = -400; exponent <= 400; ++exponent) {
    for (const std::string digits : {"1", "9007199254740993", "9999999999999999999"}) {
      const std::string text = digits + "e" + std::to_string(exponent);
      const double value = std::strtod(text.c_str(), nullptr);
      expect_read(text, exponent < 0 ? 2 : 1, value, value);
    }
  }
}
