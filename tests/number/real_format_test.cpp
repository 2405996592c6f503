#include "number/real_format.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <random>
#include <string>

#include "number/wide_product.h"
#include "support/guarded_buffer.h"
#include "support/scoped_locale.h"
#include "support/table.h"
#include "zeph.h"

using namespace zeph_test;

namespace {

std::string written(double value, int code) {
  static const GuardedBuffer out(64);
  std::memset(out.data(), GuardedBuffer::pattern, 64);
  Orbane::Zeph_Conv_Dbl_To_Str(value, code, out.data());
  const std::size_t size = strnlen(out.data(), 64);
  EXPECT_LT(size, 64U);
  EXPECT_TRUE(out.untouched(size + 1));
  return out.data();
}

// What the runtime's format makes of the table of codes.
std::string model(double value, int code) {
  char text[400];
  const bool exponent = code < 0 && code >= -10;
  const int decimals = exponent ? -code : code >= 0 && code <= 10 ? code : 6;
  std::snprintf(text, sizeof text, exponent ? "%.*e" : "%.*f", decimals, value);
  if (exponent) zeph::trim_exponent(text);
  return std::string(text).substr(0, 63);
}

void expect_as_runtime(double value) {
  for (int code = -11; code <= 11; ++code) {
    EXPECT_EQ(written(value, code), model(value, code)) << value << " with code " << code;
  }
}

const double special_values[] = {0.0,
                                 -0.0,
                                 -1e-30,
                                 0.5,
                                 1.5,
                                 -2.5,
                                 0.125,
                                 0.375,
                                 99.995,
                                 0.99999999999,
                                 9.9999999999999,
                                 4503599627370495.5,
                                 9007199254740992.0,
                                 9223372036854774784.0,
                                 9223372036854775808.0,
                                 18446744073709551616.0,
                                 1e51,
                                 1e52,
                                 9.9e62,
                                 1e63,
                                 1e300,
                                 std::numeric_limits<double>::max(),
                                 std::numeric_limits<double>::min(),
                                 std::numeric_limits<double>::denorm_min(),
                                 std::numeric_limits<double>::infinity(),
                                 -std::numeric_limits<double>::infinity(),
                                 std::numeric_limits<double>::quiet_NaN(),
                                 -std::numeric_limits<double>::quiet_NaN()};

}  // namespace

TEST(RealFormat, PrecisionCodes) {
  const struct {
    const char* why;
    double value;
    int code;
    std::string text;
  } rows[] = {
      {"two decimals", 1234.5678, 2, "1234.57"},
      {"no decimals, no point", 1234.5678, 0, "1235"},
      {"ten decimals", 1234.5678, 10, "1234.5678000000"},
      {"exponent", 1234.5678, -2, "1.23e+03"},
      {"ten decimals and exponent", 1234.5678, -10, "1.2345678000e+03"},
      {"beyond the codes", 1234.5678, 11, "1234.567800"},
      {"beyond the codes, negative", 1234.5678, -11, "1234.567800"},
      {"the least code", 1234.5678, std::numeric_limits<int>::min(), "1234.567800"},
      {"zero with exponent", 0.0, -3, "0.000e+00"},
      {"a tie goes to the even digit", 2.5, 0, "2"},
      {"a tie behind the point", 0.125, 2, "0.12"},
      {"no tie: the stored value is below", 1.005, 2, "1.00"},
      {"carries into a new digit", 9.999, 2, "10.00"},
      {"the code picks the notation", 1e-5, 2, "0.00"},
      {"rounds to negative zero", -0.001, 2, "-0.00"},
      {"three digits of exponent", 1e300, -1, "1.0e+300"},
      {"cut at 63", 1e62, 1, "100000000000000003502199685943161173046080317798311825604870144"},
      {"cut in front of the point", 1e300, 1, model(1e300, 1)},
  };
  each_row(rows, [](const auto& row) { EXPECT_EQ(written(row.value, row.code), row.text); });
  EXPECT_EQ(written(1e300, 1).size(), 63U);
}

TEST(RealFormat, AgreesWithTheRuntime) {
  for (const double value : special_values) expect_as_runtime(value);
  std::mt19937_64 random(5);
  for (int i = 0; i < 4000; ++i) {
    std::uint64_t image = random();
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
  EXPECT_EQ(written(1234.5678, 2), "1234,57");
  EXPECT_EQ(written(1234.5678, -2), "1,23e+03");
  for (const double value : special_values) expect_as_runtime(value);
}

TEST(RealFormat, ExponentTrim) {
  const struct {
    const char* why;
    const char* text;
    const char* trimmed;
  } rows[] = {
      {"two zeros", "1.5e+003", "1.5e+3"},    {"one zero", "1.5e+012", "1.5e+12"},
      {"at most two", "1.5e+000", "1.5e+0"},  {"three digits", "1.5e+100", "1.5e+100"},
      {"two digits", "1.50e-03", "1.50e-03"}, {"a word", "inf", "inf"},
  };
  each_row(rows, [](const auto& row) {
    const GuardedText text(row.text);
    zeph::trim_exponent(text.data());
    EXPECT_STREQ(text.data(), row.trimmed);
  });
}

TEST(WideProduct, PortableFormAgrees) {
  std::mt19937_64 random(3);
  const auto check = [](std::uint64_t a, std::uint64_t b) {
    const zeph::Wide wide = zeph::wide_product(a, b), plain = zeph::wide_product_portable(a, b);
    EXPECT_EQ(plain.low, a * b);
    EXPECT_EQ(wide.low, plain.low);
    EXPECT_EQ(wide.high, plain.high);
  };
  check(~std::uint64_t{0}, ~std::uint64_t{0});
  for (int i = 0; i < 1000; ++i) check(random(), random() >> random() % 64);
}
