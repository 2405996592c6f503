#include "number/real_format.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <random>
#include <string>

#include "number/real_format_table.h"
#include "number/wide_product.h"
#include "support/guarded_buffer.h"
#include "support/scoped_locale.h"
#include "support/table.h"
#include "zeph.h"

using namespace zeph_test;

namespace {

void expect_written(double value, int code, const std::string& expected) {
  static const GuardedBuffer out(64);
  std::memset(out.data(), GuardedBuffer::pattern, 64);
  Orbane::Zeph_Conv_Dbl_To_Str(value, code, out.data());
  EXPECT_EQ(std::string(out.data(), strnlen(out.data(), 64)), expected) << value << ", " << code;
  EXPECT_TRUE(out.untouched(expected.size() + 1));
}

// What the runtime's format makes of the table of codes.
void expect_as_runtime(double value) {
  for (int code = -11; code <= 11; ++code) {
    char text[400];
    const bool exponent = code < 0 && code >= -10;
    const int decimals = exponent ? -code : code >= 0 && code <= 10 ? code : 6;
    std::snprintf(text, sizeof text, exponent ? "%.*e" : "%.*f", decimals, value);
    if (exponent) zeph::trim_exponent(text);
    expect_written(value, code, std::string(text).substr(0, 63));
  }
}

}  // namespace

TEST(RealFormat, PrecisionCodes) {
  each_row(precision_rows, [](const auto& row) { expect_written(row.value, row.code, row.text); });
}

TEST(RealFormat, AgreesWithTheRuntime) {
  for (const double value : special_values) expect_as_runtime(value);
  std::mt19937_64 random(5);
  for (int i = 0; i < 4000; ++i) {
    const std::uint64_t image = random();
    double any;
    std::memcpy(&any, &image, sizeof any);
    expect_as_runtime(any);
    const auto number = static_cast<double>(random() % 2000001) - 1e6;
    expect_as_runtime(std::ldexp(number, -static_cast<int>(random() % 40)));  // many ties
    expect_as_runtime(number / 1000.0);
  }
}

TEST(RealFormat, FollowsALocaleWithAComma) {
  const ScopedLocale locale(LC_NUMERIC, "de_DE", "UTF-8");
  if (!locale.in_force()) GTEST_SKIP() << locale.reason();
  expect_written(1234.5678, -2, "1,23e+03");
  for (const double value : special_values) expect_as_runtime(value);
}

TEST(RealFormat, ExponentTrim) {
  each_row(exponent_rows, [](const auto& row) {
    const GuardedText text(row.text);
    zeph::trim_exponent(text.data());
    EXPECT_STREQ(text.data(), row.trimmed);
  });
}

TEST(WideProduct, PortableFormAgrees) {
  std::mt19937_64 random(3);
  for (int i = 0; i < 1000; ++i) {
    const std::uint64_t a = i == 0 ? ~std::uint64_t{0} : random();
    const std::uint64_t b = i == 0 ? a : random() >> random() % 64;
    const zeph::Wide wide = zeph::wide_product(a, b), plain = zeph::wide_product_portable(a, b);
    EXPECT_EQ(plain.low, a * b);
    EXPECT_EQ(wide.low, plain.low);
    EXPECT_EQ(wide.high, plain.high);
  }
}
