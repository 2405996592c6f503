#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <string>

#include "support/guarded_buffer.h"
#include "support/table.h"
#include "zeph.h"

using namespace zeph_test;

TEST(CopyStack, TextIsCutAtTheRoom) {
  const struct {
    const char* why;
    const char* source;
    int size;
    const char* result;
  } rows[] = {
      {"cut", "abcdef", 4, "abc"},        {"fits to the byte", "abc", 4, "abc"},
      {"terminator alone", "abc", 1, ""}, {"NULL is the empty text", nullptr, 2, ""},
      {"room to spare", "ab", 100, "ab"},
  };
  each_row(rows, [](const auto& row) {
    GuardedBuffer target(static_cast<std::size_t>(row.size));
    EXPECT_TRUE(Orbane::Zeph_Copy_Stack(target.data(), row.source, row.size));
    EXPECT_STREQ(target.data(), row.result);
    EXPECT_TRUE(target.untouched(std::string(row.result).size() + 1));
  });
  GuardedText bare("abc", End::bare);
  char line[4];
  EXPECT_TRUE(Orbane::Zeph_Copy_Stack(line, bare.data(), 4)) << "reads no further than it writes";
  EXPECT_STREQ(line, "abc");
}

TEST(CopyStack, NumbersAreCutAtTheRoom) {
  const std::string largest = "1797693134862315";
  const struct {
    const char* why;
    int integer;
    double real;
    int size;
    const char* integer_text;
    const char* real_text;
  } rows[] = {
      {"six digits behind the point", 0, 1.5, 9, "0", "1.500000"},
      {"cut", 12345, 2.25, 4, "123", "2.2"},
      {"lowest", INT_MIN, -0.0, 12, "-2147483648", "-0.000000"},
      {"highest", INT_MAX, DBL_MAX, 17, "2147483647", largest.c_str()},
      {"terminator alone", 7, 7.0, 1, "", ""},
  };
  each_row(rows, [](const auto& row) {
    GuardedBuffer integer(static_cast<std::size_t>(row.size));
    GuardedBuffer real(static_cast<std::size_t>(row.size));
    EXPECT_TRUE(Orbane::Zeph_Copy_Stack(integer.data(), row.integer, row.size));
    EXPECT_TRUE(Orbane::Zeph_Copy_Stack(real.data(), row.real, row.size));
    EXPECT_STREQ(integer.data(), row.integer_text);
    EXPECT_STREQ(real.data(), row.real_text);
    EXPECT_TRUE(integer.untouched(std::string(row.integer_text).size() + 1));
  });
}

TEST(CopyStack, SizeZeroAndNegative) {
  EXPECT_TRUE(Orbane::Zeph_Copy_Stack(nullptr, "a", 0));
  EXPECT_TRUE(Orbane::Zeph_Copy_Stack(nullptr, 1, 0));
  EXPECT_TRUE(Orbane::Zeph_Copy_Stack(nullptr, 1.0, 0));
  GuardedBuffer text(4), integer(3), real(9);
  EXPECT_TRUE(Orbane::Zeph_Copy_Stack(text.data(), "abc", -1)) << "a negative size is no limit";
  EXPECT_TRUE(Orbane::Zeph_Copy_Stack(integer.data(), -5, INT_MIN));
  EXPECT_TRUE(Orbane::Zeph_Copy_Stack(real.data(), 0.25, -1));
  EXPECT_STREQ(text.data(), "abc");
  EXPECT_STREQ(integer.data(), "-5");
  EXPECT_STREQ(real.data(), "0.250000");
}
