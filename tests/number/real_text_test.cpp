#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>

#include "support/guarded_buffer.h"
#include "support/refusing_heap.h"
#include "support/scoped_locale.h"
#include "support/stdout_capture.h"
#include "support/table.h"
#include "zeph.h"

using namespace Orbane;
using namespace zeph_test;

namespace {

constexpr double before = -77.0;  // what an output holds before a call

// Equal to the last bit, so that 0.0 is not -0.0.
void expect_same(double value, double expected) {
  EXPECT_EQ(std::memcmp(&value, &expected, sizeof value), 0) << value << " is not " << expected;
}

int model_code(const std::string& text) {
  const auto count = [&](const std::string& bytes) {
    return std::count_if(text.begin(), text.end(),
                         [&](char byte) { return bytes.find(byte) != std::string::npos; });
  };
  const auto digits = count("0123456789"), minuses = count("-");
  const bool passes = digits > 0 && count(".") <= 1 && count("eE") <= 1 && minuses <= 2 &&
                      count("+") <= 2 &&
                      count("0123456789.eE-+") == static_cast<std::ptrdiff_t>(text.size());
  return passes ? (minuses == 1 ? 2 : 1) : 0;
}

// All readers against the test above and the runtime's own scan and strtod.
void expect_as_runtime(const std::string& bytes) {
  SCOPED_TRACE(bytes);
  static const GuardedBuffer room(2000);
  char* const text = room.data() + room.size() - bytes.size() - 1;
  std::memcpy(text, bytes.c_str(), bytes.size() + 1);
  const int code = model_code(bytes);
  double scanned = 0.0, value = before;
  std::sscanf(text, "%lf", &scanned);
  char* end;
  const double number = std::strtod(text, &end);
  errno = 33;
  EXPECT_EQ(Zeph_Double_Check(text), code);
  EXPECT_EQ(Zeph_To_Double(text, &value), code != 0);
  expect_same(value, code != 0 ? scanned : before);
  if (bytes.size() <= 255) {
    const auto size = static_cast<int>(bytes.size());
    expect_same(Zeph_Ext_Dbl_From_Str(text, 0, size), end == text ? 0.0 : number);
  }
  EXPECT_EQ(errno, 33);
}

// Some runtimes are a bit off in the last place, where ours is not.
bool runtime_is_exact() {
  double scanned = 0.0;
  std::sscanf("1e126", "%lf", &scanned);
  return scanned == 1e126 && std::strtod("1e126", nullptr) == 1e126;
}

std::string printed(const char* format, double value, int digits) {
  char text[400];
  std::snprintf(text, sizeof text, format, digits, value);
  return text;
}

std::size_t below(std::mt19937_64& random, std::size_t bound) {
  return static_cast<std::size_t>(random() % bound);
}

// A number in the middle between two doubles, or a hair above it: an odd number of 54 bits, divided
// by a power of two.
std::string middle_of_doubles(std::mt19937_64& random) {
  const std::uint64_t odd = (random() >> 10) | (std::uint64_t{1} << 53) | 1;
  const auto places = static_cast<int>(1 + below(random, 30));
  const std::uint64_t fraction = odd & ((std::uint64_t{1} << places) - 1);
  const double decimals = std::ldexp(static_cast<double>(fraction), -places);
  const std::string text =
      std::to_string(odd >> places) + printed("%.*f", decimals, places).substr(1);
  return below(random, 2) == 0 ? text : text + std::string(below(random, 20), '0') + "1";
}

std::string any_digits(std::mt19937_64& random) {
  std::string text(1 + below(random, below(random, 50) == 0 ? 400 : 24), '0');
  for (char& digit : text) {
    if (below(random, 3) > 0) digit = static_cast<char>('0' + below(random, 10));
  }
  text.insert(below(random, text.size()), ".");
  if (below(random, 4) == 0) text.insert(0, "-");
  return text + "e" + std::to_string(static_cast<int>(below(random, 700)) - 350);
}

std::string any_double(std::mt19937_64& random) {
  std::uint64_t image = random();
  if (below(random, 8) == 0) image &= 0x800FFFFFFFFFFFFF;  // a denormal
  double value;
  std::memcpy(&value, &image, sizeof value);
  return printed("%.*e", std::isfinite(value) ? value : 0.0, static_cast<int>(below(random, 20)));
}

}  // namespace

TEST(RealText, TwoJudges) {
  // clang-format off
  const struct { const char* why; const char* text; int code; double value, lenient; } rows[] = {
      {"empty", "", 0, before, 0.0},
      {"no digit", "-", 0, before, 0.0},
      {"no digit in front of the point", "+.5", 1, 0.5, 0.5},
      {"no digit behind the point", "5.", 1, 5.0, 5.0},
      {"one minus, in the exponent", "1e-3", 2, 0.001, 0.001},
      {"two minuses", "-1e-3", 1, -0.001, -0.001},
      {"the scan stops at a sign", "5-3", 2, 5.0, 5.0},
      {"the scan stops behind an exponent", "1.5e3-", 2, 1500.0, 1500.0},
      {"an exponent without digits", "5e", 1, 5.0, 5.0},
      {"an exponent with a sign alone", "1.e+", 1, 1.0, 1.0},
      {"starts with no number", "-e5", 2, 0.0, 0.0},
      {"two signs", "+-5", 2, 0.0, 0.0},
      {"two points", "1.2.3", 0, before, 1.2},
      {"two exponent letters", "1e2E3", 0, before, 100.0},
      {"three minuses", "-1-2-3", 0, before, -1.0},
      {"three pluses", "+1+2+3", 0, before, 1.0},
      {"white space in front", "\n\t\v\f\r 5", 0, before, 5.0},
      {"a comma", "1,5", 0, before, 1.0},
      {"a hexadecimal form", "0x10", 0, before, 16.0},
      {"infinity as a word", "-inf", 0, before, -HUGE_VAL},
      {"negative zero", "-0e99999999999999999999", 2, -0.0, -0.0},
      {"too large", "-1e400", 2, -HUGE_VAL, -HUGE_VAL},
      {"too small", "1e-400", 2, 0.0, 0.0},
      {"half the smallest", "2.4703282292062327e-324", 2, 0.0, 0.0},
      {"above half the smallest", "2.4703282292062328e-324", 2, 4.9e-324, 4.9e-324},
      {"rounds beyond the largest", "1.7976931348623159e308", 1, HUGE_VAL, HUGE_VAL},
      {"a tie", "9007199254740993", 1, 9007199254740992.0, 9007199254740992.0},
      {"many zeros", "0.00000000000000000000012345678901234567", 1, 1.2345678901234567e-22,
       1.2345678901234567e-22},
  };
  // clang-format on
  each_row(rows, [](const auto& row) {
    const std::string object = std::string(row.text) + '\0' + "x";
    const GuardedText text(row.text), bare(row.text, End::bare);
    const auto size = static_cast<int>(object.size() - 2);
    const GuardedBuffer work(object.size() - 1);
    double value = before;
    const auto expect = [&](bool result, bool expected) {
      EXPECT_EQ(result, expected);
      expect_same(value, row.value);
      value = before;
    };
    EXPECT_EQ(Zeph_Double_Check(text.data()), row.code);
    EXPECT_EQ(Zeph_Double_Check(object), row.code);
    expect(Zeph_To_Double(text.data(), &value), row.code != 0);
    expect(Zeph_To_Double(object, &value), row.code != 0);
    expect(Zeph_To_Double(bare.data(), &value, 0, size), row.code != 0);
    expect(Zeph_To_Double(object, &value, 0, size + 2), row.code != 0);
    const bool inside = row.code != 0 && row.value >= 0.5 && row.value <= 5.0;
    expect(Zeph_To_Double(text.data(), 0.5, 5.0, &value), inside);
    expect(Zeph_To_Double(object, 0.5, 5.0, &value), inside);
    expect(Zeph_To_Double(bare.data(), 0.5, 5.0, &value, 0, size), inside);
    expect(Zeph_To_Double(object, 0.5, 5.0, &value, 0, size), inside);
    expect_same(Zeph_Ext_Dbl_From_Str(bare.data(), 0, size, work.data()), row.lenient);
    EXPECT_STREQ(work.data(), row.text);
  });
}

TEST(RealText, AgreesWithTheRuntimeOnShortTexts) {
  each_text("05.e-+", 6, expect_as_runtime);
  each_text(" 0x1pE.-n", 4, expect_as_runtime);
}

TEST(RealText, AgreesWithTheRuntimeOnHardNumbers) {
  if (!runtime_is_exact()) GTEST_SKIP() << "the runtime does not round to nearest";
  std::mt19937_64 random(20);
  for (int i = 0; i < 35000; ++i) {
    expect_as_runtime(middle_of_doubles(random));
    expect_as_runtime(any_digits(random));
    expect_as_runtime(any_double(random));
  }
  for (int i = -400; i <= 400; ++i) expect_as_runtime("9007199254740993e" + std::to_string(i));
}

TEST(RealText, FollowsALocaleWithAComma) {
  const ScopedLocale locale(LC_NUMERIC, "de_DE", "UTF-8");
  if (!locale.in_force()) GTEST_SKIP() << locale.reason();
  double value = before;
  EXPECT_TRUE(Zeph_To_Double("2.5", &value));  // the test takes the point, the scan stops there
  expect_same(value, 2.0);
  expect_same(Zeph_Ext_Dbl_From_Str("a-2,5e1b", 1, 6), -25.0);
  each_text("05.,e-+", 5, expect_as_runtime);
}

TEST(RealText, Bounds) {
  const struct {
    const char* why;
    double minimum, maximum;
    bool passes;
  } rows[] = {
      {"the lower end", 2.5, 3.5, true}, {"the upper end", 1.5, 2.5, true},
      {"equal", 9.0, 9.0, true},         {"zeros of both signs", -0.0, 0.0, true},
      {"below", 2.6, 3.0, false},        {"above", 1.0, 2.4, false},
      {"crossed", 3.0, 1.0, false},      {"no lower bound", std::nan(""), 3.0, true},
  };
  each_row(rows, [](const auto& row) {
    double value = before;
    EXPECT_FALSE(Zeph_To_Double("", row.minimum, row.maximum, &value));
    expect_same(value, before);
    EXPECT_EQ(Zeph_To_Double("ab2.5cd", row.minimum, row.maximum, &value, 2, 3), row.passes);
    expect_same(value, 2.5);
  });
}

TEST(RealText, RefusalsAreReported) {
  REQUIRE_REFUSING_HEAP;
  RefusingHeap heap;
  const GuardedBuffer work(1);
  for (const int count : {256, -1, INT_MIN}) {
    heap.refuse_calloc(1);
    StdoutCapture capture;
    double value = before;
    EXPECT_FALSE(Zeph_To_Double("12", &value, 0, count));
    expect_same(value, before);
    expect_same(Zeph_Ext_Dbl_From_Str("7", 0, count), 0.0);
    expect_same(Zeph_Ext_Dbl_From_Str("7", 0, std::min(count, -1), work.data()), 0.0);
    EXPECT_TRUE(work.untouched());
    EXPECT_EQ(capture.text(), banner("[Zeph] Memory calloc Fail in Zeph_Prepare_Mem") +
                                  banner("[ZEPH_API] Ext_Dbl_From_Str Size Error"));
  }
}
