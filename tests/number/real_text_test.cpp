#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
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
constexpr double infinity = std::numeric_limits<double>::infinity();

// Equal to the last bit, so that 0.0 is not -0.0.
void expect_same(double value, double expected) {
  EXPECT_EQ(std::memcmp(&value, &expected, sizeof value), 0) << value << " is not " << expected;
}

int model_code(const std::string& text) {
  const auto count = [&](const char* bytes) {
    return std::count_if(text.begin(), text.end(),
                         [=](char byte) { return std::strchr(bytes, byte) != nullptr; });
  };
  const bool passes = text.find_first_not_of("0123456789.eE+-") == std::string::npos &&
                      count("0123456789") > 0 && count(".") <= 1 && count("eE") <= 1 &&
                      count("-") <= 2 && count("+") <= 2;
  return passes ? (count("-") == 1 ? 2 : 1) : 0;
}

// The text ends at an inaccessible page.
class TextAtTheEdge {
 public:
  const char* put(const std::string& text) {
    char* const start = room_.data() + room_.size() - 1 - text.size();
    std::memcpy(start, text.c_str(), text.size() + 1);
    return start;
  }

 private:
  GuardedBuffer room_{2000};
};

// The two judges of the runtime's own services.
void expect_as_runtime(TextAtTheEdge& edge, const std::string& bytes) {
  SCOPED_TRACE(bytes);
  const char* const text = edge.put(bytes);
  const int code = model_code(bytes);
  double scanned = 0.0, value = before;
  std::sscanf(text, "%lf", &scanned);
  EXPECT_EQ(Zeph_Double_Check(text), code);
  EXPECT_EQ(Zeph_To_Double(text, &value), code != 0);
  expect_same(value, code != 0 ? scanned : before);
  if (bytes.size() > 255) return;
  char* end;
  const double number = std::strtod(text, &end);
  expect_same(Zeph_Ext_Dbl_From_Str(text, 0, static_cast<int>(bytes.size())),
              end == text ? 0.0 : number);
}

// Some runtimes are a bit off in the last place, where ours is not.
bool runtime_is_exact() {
  double scanned = 0.0;
  std::sscanf("1e126", "%lf", &scanned);
  return scanned == 1e126 && std::strtod("1e126", nullptr) == 1e126;
}

std::string printed(const char* format, double value, int digits) {
  char text[1200];
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
  const auto places = static_cast<int>(random() % 30);
  const std::uint64_t fraction = odd & ((std::uint64_t{1} << places) - 1);
  std::string text = std::to_string(odd >> places);
  text += printed("%.*f", std::ldexp(static_cast<double>(fraction), -places), places).substr(1);
  if (text.find('.') == std::string::npos) text += '.';
  if (random() % 2 == 0) text += std::string(below(random, 20), '0') + "1";
  return text;
}

std::string any_digits(std::mt19937_64& random) {
  std::string text = random() % 4 == 0 ? "-" : "";
  const std::size_t size = 1 + below(random, random() % 50 == 0 ? 400 : 24);
  const std::size_t point = below(random, 2 * size);
  for (std::size_t i = 0; i < size; ++i) {
    if (i == point) text += '.';
    text += static_cast<char>('0' + (random() % 3 == 0 ? 0 : random() % 10));
  }
  const int exponent = static_cast<int>(random() % 700) - 350;
  return random() % 2 == 0 ? text : text + "e" + std::to_string(exponent);
}

std::string any_double(std::mt19937_64& random) {
  std::uint64_t image = random();
  if (random() % 8 == 0) image &= 0x800FFFFFFFFFFFFF;  // a denormal
  double value;
  std::memcpy(&value, &image, sizeof value);
  return printed("%.*e", std::isfinite(value) ? value : 0.0, static_cast<int>(random() % 20));
}

}  // namespace

TEST(RealText, TwoJudges) {
  const struct {
    const char* why;
    const char* text;
    int code;
    double value;
    double lenient;
  } rows[] = {
      {"no byte", "", 0, before, 0.0},
      {"no digit", "-", 0, before, 0.0},
      {"a point alone", ".", 0, before, 0.0},
      {"one digit", "5", 1, 5.0, 5.0},
      {"one minus", "-5", 2, -5.0, -5.0},
      {"no digit in front of the point", "+.5", 1, 0.5, 0.5},
      {"no digit behind the point", "5.", 1, 5.0, 5.0},
      {"an exponent", "1e3", 1, 1000.0, 1000.0},
      {"a minus in the exponent", "1e-3", 2, 0.001, 0.001},
      {"two minuses", "-1e-3", 1, -0.001, -0.001},
      {"the scan stops at a sign", "5-3", 2, 5.0, 5.0},
      {"the scan stops behind an exponent", "1.5e3-", 2, 1500.0, 1500.0},
      {"an exponent without digits", "5e", 1, 5.0, 5.0},
      {"an exponent with a sign alone", "1.e+", 1, 1.0, 1.0},
      {"starts with no number", "e5", 1, 0.0, 0.0},
      {"starts with a sign and no number", "-e5", 2, 0.0, 0.0},
      {"two signs", "+-5", 2, 0.0, 0.0},
      {"two minuses in front", "--5", 1, 0.0, 0.0},
      {"two points", "1.2.3", 0, before, 1.2},
      {"two exponent letters", "1e2E3", 0, before, 100.0},
      {"three minuses", "-1-2-3", 0, before, -1.0},
      {"three pluses", "+1+2+3", 0, before, 1.0},
      {"a blank in front", " 5", 0, before, 5.0},
      {"white space in front", "\n\t\v\f\r5", 0, before, 5.0},
      {"a blank behind", "5 ", 0, before, 5.0},
      {"a comma", "1,5", 0, before, 1.0},
      {"a hexadecimal form", "0x10", 0, before, 16.0},
      {"infinity as a word", "-inf", 0, before, -infinity},
      {"negative zero", "-0e99999999999999999999", 2, -0.0, -0.0},
      {"too large", "-1e400", 2, -infinity, -infinity},
      {"too small", "1e-400", 2, 0.0, 0.0},
      {"an exponent beyond every word", "1e99999999999999999999", 1, infinity, infinity},
      {"the smallest", "4.9e-324", 2, 4.9e-324, 4.9e-324},
      {"half of it", "2.4703282292062327e-324", 2, 0.0, 0.0},
      {"above half of it", "2.4703282292062328e-324", 2, 4.9e-324, 4.9e-324},
      {"rounds up to the largest", "1.7976931348623158e308", 1, 1.7976931348623157e308,
       1.7976931348623157e308},
      {"rounds beyond the largest", "1.7976931348623159e308", 1, infinity, infinity},
      {"a tie", "9007199254740993", 1, 9007199254740992.0, 9007199254740992.0},
      {"a tie to the upper neighbour", "9007199254740995", 1, 9007199254740996.0,
       9007199254740996.0},
      {"many leading zeros", "0.00000000000000000000012345678901234567", 1,
       0.00000000000000000000012345678901234567, 0.00000000000000000000012345678901234567},
  };
  each_row(rows, [](const auto& row) {
    const GuardedText text(row.text);
    const auto size = static_cast<int>(std::strlen(row.text));
    const GuardedText bare(row.text, End::bare);
    const GuardedBuffer work(std::strlen(row.text) + 1);
    double value = before;
    errno = 33;
    EXPECT_EQ(Zeph_Double_Check(text.data()), row.code);
    EXPECT_EQ(Zeph_To_Double(text.data(), &value), row.code != 0);
    expect_same(value, row.value);
    value = before;
    EXPECT_EQ(Zeph_To_Double(bare.data(), &value, 0, size), row.code != 0);
    expect_same(value, row.value);
    expect_same(Zeph_Ext_Dbl_From_Str(bare.data(), 0, size), row.lenient);
    expect_same(Zeph_Ext_Dbl_From_Str(bare.data(), 0, size, work.data()), row.lenient);
    EXPECT_STREQ(work.data(), row.text);
    EXPECT_EQ(errno, 33);
  });
}

TEST(RealText, AgreesWithTheRuntimeOnShortTexts) {
  TextAtTheEdge edge;
  each_text("05.e-+", 6, [&](const std::string& text) { expect_as_runtime(edge, text); });
  each_text(" 0x1pE.-n", 4, [&](const std::string& text) { expect_as_runtime(edge, text); });
}

TEST(RealText, AgreesWithTheRuntimeOnHardNumbers) {
  if (!runtime_is_exact()) GTEST_SKIP() << "the runtime does not round to nearest";
  std::mt19937_64 random(20);
  TextAtTheEdge edge;
  for (int i = 0; i < 35000; ++i) {
    expect_as_runtime(edge, middle_of_doubles(random));
    expect_as_runtime(edge, any_digits(random));
    expect_as_runtime(edge, any_double(random));
  }
}

TEST(RealText, EveryPowerOfTen) {
  if (!runtime_is_exact()) GTEST_SKIP() << "the runtime does not round to nearest";
  TextAtTheEdge edge;
  for (int exponent = -400; exponent <= 400; ++exponent) {
    for (const char* digits :
         {"1", "9007199254740993", "18446744073709551615", "9999999999999999999"}) {
      expect_as_runtime(edge, digits + ("e" + std::to_string(exponent)));
    }
  }
}

TEST(RealText, FollowsALocaleWithAComma) {
  const ScopedLocale locale(LC_NUMERIC, "de_DE", "UTF-8");
  if (!locale.in_force()) GTEST_SKIP() << locale.reason();
  TextAtTheEdge edge;
  double value = before;
  EXPECT_TRUE(Zeph_To_Double("2.5", &value));  // the test takes the point, the scan stops there
  expect_same(value, 2.0);
  EXPECT_TRUE(Zeph_To_Double(".5", &value));
  expect_same(value, 0.0);
  expect_same(Zeph_Ext_Dbl_From_Str("a-2,5e1b", 1, 6), -25.0);
  each_text("05.,e-+", 5, [&](const std::string& text) { expect_as_runtime(edge, text); });
}

TEST(RealText, Bounds) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const struct {
    const char* why;
    double minimum, maximum;
    bool passes;
  } rows[] = {
      {"the lower end", 2.5, 3.5, true},   {"the upper end", 1.5, 2.5, true},
      {"equal bounds", 9.0, 9.0, true},    {"zeros of both signs", -0.0, 0.0, true},
      {"below", 2.6, 3.0, false},          {"above", 1.0, 2.4, false},
      {"crossed", 3.0, 1.0, false},        {"no lower bound", nan, 3.0, true},
      {"no upper bound", 3.0, nan, false},
  };
  each_row(rows, [](const auto& row) {
    double value = before;
    EXPECT_EQ(Zeph_To_Double("2.5", row.minimum, row.maximum, &value), row.passes);
    expect_same(value, 2.5);
    EXPECT_EQ(Zeph_To_Double("ab2.5cd", row.minimum, row.maximum, &value, 2, 3), row.passes);
    EXPECT_EQ(Zeph_To_Double(std::string("2.5"), row.minimum, row.maximum, &value), row.passes);
    value = before;
    EXPECT_FALSE(Zeph_To_Double("", row.minimum, row.maximum, &value));
    EXPECT_FALSE(Zeph_To_Double("2.5", row.minimum, row.maximum, &value, 1, 0));
    expect_same(value, before);
  });
}

TEST(RealText, StringsEndAtAZeroByte) {
  const std::string text("12.5\0x", 6);
  double value = before;
  EXPECT_EQ(Zeph_Double_Check(text), 1);
  EXPECT_TRUE(Zeph_To_Double(text, &value));
  expect_same(value, 12.5);
  EXPECT_TRUE(Zeph_To_Double(text, &value, 1, 5));
  expect_same(value, 2.5);
  EXPECT_FALSE(Zeph_To_Double(text, 3.0, 9.0, &value, 1, 5));
}

TEST(RealText, SliceWithoutAWorkBufferIsReported) {
  REQUIRE_REFUSING_HEAP;
  RefusingHeap heap;
  for (const int count : {2, -1, INT_MIN}) {
    heap.refuse_calloc(1);
    StdoutCapture capture;
    double value = before;
    EXPECT_FALSE(Zeph_To_Double("12", &value, 0, count));
    expect_same(value, before);
    EXPECT_EQ(capture.text(), banner("[Zeph] Memory calloc Fail in Zeph_Prepare_Mem"));
  }
}

TEST(RealText, LenientLimits) {
  const GuardedText text(std::string(254, '0') + "7.5" + std::string(43, '0'), End::bare);
  expect_same(Zeph_Ext_Dbl_From_Str(text.data(), 0, 255), 7.0);
  for (const int count : {256, INT_MAX, -1, INT_MIN}) {
    StdoutCapture capture;
    expect_same(Zeph_Ext_Dbl_From_Str(text.data(), 0, count), 0.0);
    EXPECT_EQ(capture.text(), banner("[ZEPH_API] Ext_Dbl_From_Str Size Error"));
  }
  const GuardedBuffer work(301);
  StdoutCapture capture;
  expect_same(Zeph_Ext_Dbl_From_Str(text.data(), 0, -1, work.data()), 0.0);
  EXPECT_TRUE(work.untouched());
  expect_same(Zeph_Ext_Dbl_From_Str(text.data(), 0, 300, work.data()), 7.5);
  EXPECT_EQ(capture.text(), "");
}
