#include <gtest/gtest.h>

#include <cerrno>
#include <cfloat>
#include <climits>
#include <new>
#include <string>

#include "rewrite/alarm_harness.h"
#include "rewrite/rewrite_table.h"
#include "support/guarded_buffer.h"
#include "support/table.h"
#include "zeph.h"

using namespace zeph_test;

namespace {

template <typename Value>
std::string cat(const std::string& text, Value value, std::size_t length) {
  GuardedBuffer room(length + 1);
  text.copy(room.data(), text.size());
  room.data()[text.size()] = '\0';
  EXPECT_EQ(Orbane::Zeph_Cat(room.data(), value), room.data());
  return room.data();
}

}  // namespace

TEST(Cat, AppendsTextsBytesAndNumbers) {
  EXPECT_EQ(cat("ab", "cd", 4), "abcd");
  EXPECT_EQ(cat("", "", 0), "");
  EXPECT_EQ(cat("ab", '\xC4', 3), "ab\xC4");
  EXPECT_EQ(cat("ab", '\0', 2), "ab");
  EXPECT_EQ(cat("n", INT_MIN, 12), "n-2147483648");
  EXPECT_EQ(cat("n", 0, 2), "n0");
  EXPECT_EQ(cat("", 0.1F, 8), "0.100000");
  EXPECT_EQ(cat("", 16777216.0F, 15), "16777216.000000");
  EXPECT_EQ(cat("", -FLT_MAX, 47).size(), 47U);
  EXPECT_EQ(cat("x", 1.5, 9), "x1.500000");
  EXPECT_EQ(cat("", -DBL_MAX, 317).size(), 317U);
  char twice[5] = "ab";
  EXPECT_STREQ(Orbane::Zeph_Cat(twice, twice), "abab");
}

TEST(Splicing, SizeBoundsTheText) {
  errno = 9;
  const std::string longer(600, 'x');
  EXPECT_EQ(Orbane::Zeph_Splicing(4, "%s", "abcdef"), "abc");
  EXPECT_EQ(Orbane::Zeph_Splicing(7, "%s-%d", "abcd", 5), "abcd-5");
  EXPECT_EQ(Orbane::Zeph_Splicing(1, "%d", 5), "");
  EXPECT_EQ(Orbane::Zeph_Splicing(0, "%d", 5), "");
  EXPECT_EQ(Orbane::Zeph_Splicing(9, "a%cb", 0), "a") << "up to the first zero byte";
  for (const int size : {511, 512, 513, 600, 601, 5000, INT_MAX}) {
    EXPECT_EQ(Orbane::Zeph_Splicing(size, "%s", longer.c_str()),
              longer.substr(0, static_cast<std::size_t>(size) - 1))
        << size;
  }
  EXPECT_EQ(Orbane::Zeph_Splicing(900, "%s%c%s", longer.c_str(), 0, "y"), longer);
  EXPECT_EQ(Orbane::Zeph_Splicing(1000, "%s%ls", longer.c_str(), L"\x4E2D").substr(0, 600), longer)
      << "a print that fails leaves what it has";
  EXPECT_EQ(errno, 9);
  EXPECT_THROW(Orbane::Zeph_Splicing(-1, "%d", 5), std::bad_alloc);
  EXPECT_THROW(Orbane::Zeph_Splicing(INT_MIN, "%d", 5), std::bad_alloc);
}

TEST(AlarmText, JoinsHalfByHalf) {
  each_row(alarm_rows, [](const auto& row) {
    const std::size_t size = std::max(row.texts[0].size(), std::string(row.result).size());
    EXPECT_EQ(join_alarms(row.texts, size + 1), row.result);
  });
  char same[16] = "a|b";
  Orbane::Zeph_Strcat_Alarm_Append_Text(same, same, same + 2);
  EXPECT_STREQ(same, "a a b|b b b") << "texts may overlap";
}
