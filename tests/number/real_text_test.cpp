#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>

#include "number/real_text_table.h"
#include "number/slice_harness.h"
#include "support/guarded_buffer.h"
#include "support/scoped_locale.h"
#include "support/table.h"
#include "zeph.h"

using namespace Orbane;
using namespace zeph_test;

namespace {

// Equal to the last bit, so that 0.0 is not -0.0.
void expect_same(double value, double expected) {
  EXPECT_EQ(std::memcmp(&value, &expected, sizeof value), 0) << value << " is not " << expected;
}

int model_code(const std::string& text) {
  const auto count = [&](const std::string& bytes) {
    return std::count_if(text.begin(), text.end(),
                         [&](char byte) { return bytes.find(byte) != std::string::npos; });
  };
  const bool passes = text.find_first_not_of("0123456789.eE+-") == std::string::npos &&
                      count("0123456789") > 0 && count(".") <= 1 && count("eE") <= 1 &&
                      count("-") <= 2 && count("+") <= 2;
  return passes ? (count("-") == 1 ? 2 : 1) : 0;
}

void expect_read(const std::string& bytes, int code, double expected, double lenient) {
  SCOPED_TRACE(bytes);
  errno = 33;
  EXPECT_EQ(Zeph_Double_Check(at_edge(bytes)), code);
  EXPECT_EQ(Zeph_Double_Check(bytes + '\0' + "x"), code);
  each_form(bytes, [&](const auto& text, auto... slice) {
    double value = before;
    EXPECT_EQ(Zeph_To_Double(text, &value, slice...), code != 0);
    expect_same(value, expected);
    value = before;
    EXPECT_EQ(Zeph_To_Double(text, -4.0, 5.0, &value, slice...),
              code != 0 && expected >= -4.0 && expected <= 5.0);
    expect_same(value, expected);
  });
  if (bytes.size() <= 255) {
    const auto size = static_cast<int>(bytes.size());
    char work[256];
    expect_same(Zeph_Ext_Dbl_From_Str(at_edge(bytes, End::bare), 0, size), lenient);
    expect_same(Zeph_Ext_Dbl_From_Str(at_edge(bytes, End::bare), 0, size, work), lenient);
    EXPECT_STREQ(work, bytes.c_str());
  }
  EXPECT_EQ(errno, 33);
}

void expect_as_runtime(const std::string& text) {
  double scanned = 0.0;
  std::sscanf(text.c_str(), "%lf", &scanned);
  const int code = model_code(text);
  char* end;  // strtod: the atof of some runtimes knows no hexadecimal numbers
  const double lenient = std::strtod(text.c_str(), &end);
  expect_read(text, code, code != 0 ? scanned : before, end == text.c_str() ? 0.0 : lenient);
}

// Some runtimes are a bit off in the last place, where ours is not.
bool runtime_is_exact() {
  double scanned = 0.0;
  std::sscanf("1e126", "%lf", &scanned);
  return scanned == 1e126 && std::strtod("1e126", nullptr) == 1e126;
}

std::size_t below(std::mt19937_64& random, std::size_t bound) {
  return static_cast<std::size_t>(random() % bound);
}

// A number in the middle between two doubles, or a hair above it: an odd number of 54 bits, divided
// by a power of two.
std::string middle_of_doubles(std::mt19937_64& random) {
  const auto places = static_cast<int>(random() % 30);
  const std::uint64_t odd = (random() >> 10) | (std::uint64_t{1} << 53) | 1, whole = odd >> places;
  const double fraction = std::ldexp(static_cast<double>(odd - (whole << places)), -places);
  char digits[40];
  std::snprintf(digits, sizeof digits, "%#.*f", places, fraction);
  const std::string text = std::to_string(whole) + (digits + 1);
  return random() % 2 == 0 ? text : text + std::string(below(random, 20), '0') + "1";
}

// Often zeros, with a point somewhere or nowhere.
std::string any_digits(std::mt19937_64& random) {
  std::string text(1 + below(random, random() % 50 == 0 ? 400 : 24), '0');
  for (char& digit : text) digit = "0123456789000"[random() % 13];
  const std::size_t point = below(random, 2 * text.size());
  if (point < text.size()) text.insert(point, ".");
  const auto exponent = static_cast<int>(random() % 700) - 350;
  return random() % 2 == 0 ? text : "-" + text + "e" + std::to_string(exponent);
}

}  // namespace

TEST(RealText, TwoJudges) {
  each_row(judged_texts,
           [](const auto& row) { expect_read(row.text, row.code, row.value, row.lenient); });
}

TEST(RealText, AgreesWithTheRuntimeOnShortTexts) {
  each_text("05.e-+", 6, expect_as_runtime);
  each_text(" 0x1pE.-n", 4, expect_as_runtime);
}

TEST(RealText, AgreesWithTheRuntimeOnHardNumbers) {
  if (!runtime_is_exact()) GTEST_SKIP() << "the runtime does not round to nearest";
  std::mt19937_64 random(20);
  for (int i = 0; i < 50000; ++i) {
    for (const auto make : {middle_of_doubles, any_digits}) {
      expect_as_runtime(make(random));
    }
  }
  for (int exponent = -400; exponent <= 400; ++exponent) {
    for (const std::string digits :
         {"1", "9007199254740993", "18446744073709551615", "9999999999999999999"}) {
      expect_as_runtime(digits + "e" + std::to_string(exponent));
    }
  }
}

// The test takes a point there, and the scan stops at it.
TEST(RealText, FollowsALocaleWithAComma) {
  const ScopedLocale locale(LC_NUMERIC, "de_DE", "UTF-8");
  if (!locale.in_force()) GTEST_SKIP() << locale.reason();
  expect_read("2.5", 1, 2.0, 2.0);
  expect_read("2,5e1", 0, before, 25.0);
  each_text("05.,e-+", 5, expect_as_runtime);
}

TEST(RealText, Bounds) {
  each_row(real_bounds, [](const auto& row) {
    double value = before;
    EXPECT_EQ(Zeph_To_Double("2.5", row.minimum, row.maximum, &value), row.passes);
    expect_same(value, 2.5);
  });
}

TEST(RealText, NeedsAWorkBufferForASlice) {
  expect_work_buffer<double>([](auto... arguments) { return Zeph_To_Double(arguments...); });
}

TEST(RealText, LenientLimits) {
  expect_lenient_limits([](auto... arguments) { return Zeph_Ext_Dbl_From_Str(arguments...); },
                        "[ZEPH_API] Ext_Dbl_From_Str Size Error");
}
