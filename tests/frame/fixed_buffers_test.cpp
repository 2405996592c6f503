#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <string>

#include "frame/buffers_table.h"
#include "support/guarded_buffer.h"
#include "support/table.h"
#include "zeph.h"

using namespace zeph_test;

TEST(CopyStack, TextIsCutAtTheRoom) {
  each_row(cut_texts, [](const auto& row) {
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
  each_row(cut_numbers, [](const auto& row) {
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
  GuardedBuffer longest(318);
  EXPECT_TRUE(Orbane::Zeph_Copy_Stack(longest.data(), -DBL_MAX, -1));
  EXPECT_EQ(std::string(longest.data()).size(), 317U);
}
