#include <gtest/gtest.h>

#include <string>

#include "number/number_harness.h"
#include "support/scoped_locale.h"
#include "support/table.h"
#include "zeph.h"

using namespace Orbane;
using namespace zeph_test;

TEST(RealText, TwoJudges) {
  each_row(judged_texts,
           [](const auto& row) { expect_read(row.text, row.code, row.value, row.lenient); });
}

TEST(RealText, EveryPowerOfTen) {
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

TEST(RealText, Bounds) {
  each_row(real_bounds, [](const auto& row) {
    double value = before;
    EXPECT_EQ(Zeph_To_Double("2.5", row.minimum, row.maximum, &value), row.passes);
    expect_same(value, 2.5);
  });
}
