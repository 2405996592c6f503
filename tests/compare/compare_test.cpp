#include <gtest/gtest.h>

#include <strings.h>

#include <climits>
#include <string>

#include "compare/compare_table.h"
#include "support/guarded_buffer.h"
#include "support/scoped_locale.h"
#include "support/table.h"
#include "zeph.h"

using namespace zeph_test;

namespace {}  // namespace

TEST(Compare, WholeTexts) {
  each_row(whole_rows, [](const auto& row) {
    GuardedText a(row.a), b(row.b);
    std::string string_a = row.a, string_b = row.b;
    EXPECT_EQ(Orbane::Zeph_Compare(a.data(), b.data()), row.exact);
    EXPECT_EQ(Orbane::Zeph_Compare(string_a, string_b), row.exact);
    EXPECT_EQ(Orbane::Zeph_Compare_L(a.data(), b.data()), row.folded);
    EXPECT_EQ(Orbane::Zeph_Compare_L(string_a, string_b), row.folded);
  });
}

TEST(Compare, Prefixes) {
  each_row(prefix_rows, [](const auto& row) {
    GuardedText a(row.a), b(row.b);
    std::string string_a = row.a, string_b = row.b;
    EXPECT_EQ(Orbane::Zeph_Compare(a.data(), b.data(), row.n), row.exact);
    EXPECT_EQ(Orbane::Zeph_Compare(string_a, string_b, row.n), row.exact);
    EXPECT_EQ(Orbane::Zeph_Compare_L(a.data(), b.data(), row.n), row.folded);
    EXPECT_EQ(Orbane::Zeph_Compare_L(string_a, string_b, row.n), row.folded);
  });
}

TEST(Compare, StringsEndAtTheirFirstZeroByte) {
  std::string x("ab\0x", 4), y("ab\0y", 4), plain("AB");
  EXPECT_TRUE(Orbane::Zeph_Compare(x, y));
  EXPECT_TRUE(Orbane::Zeph_Compare(x, y, 4));
  EXPECT_TRUE(Orbane::Zeph_Compare_L(x, plain));
  EXPECT_TRUE(Orbane::Zeph_Compare_L(x, plain, 4));
  EXPECT_EQ(x, std::string("ab\0x", 4)) << "unchanged";
}

TEST(Compare, NoTerminatorIsNeededBehindTheLastByteCompared) {
  GuardedText a("abc", End::bare), b("abc", End::bare), other("aBx", End::bare);
  EXPECT_TRUE(Orbane::Zeph_Compare(a.data(), b.data(), 3));
  EXPECT_TRUE(Orbane::Zeph_Compare_L(a.data(), b.data(), 3));
  EXPECT_FALSE(Orbane::Zeph_Compare(a.data(), other.data(), -1));
  EXPECT_FALSE(Orbane::Zeph_Compare_L(a.data(), other.data(), -1));
}

TEST(Compare, TheFoldFollowsTheLocale) {
  EXPECT_FALSE(Orbane::Zeph_Compare_L("\xC4", "\xE4"));
  const ScopedLocale locale(LC_CTYPE, "de_DE", "ISO-8859-1");
  if (!locale.in_force()) GTEST_SKIP() << locale.reason();
  if (strcasecmp("\xC4", "\xE4") != 0) GTEST_SKIP() << "a sanitizer's strcasecmp knows no locale";
  EXPECT_TRUE(Orbane::Zeph_Compare_L("\xC4", "\xE4"));
  EXPECT_TRUE(Orbane::Zeph_Compare_L("\xC4", "\xE4", 1));
}

// Every pair of bytes against the fold of the ASCII letters.
TEST(Compare, EveryPairOfBytes) {
  const auto fold = [](int c) { return c >= 'A' && c <= 'Z' ? c + 32 : c; };
  for (int i = 1; i < 256; ++i) {
    for (int j = 1; j < 256; ++j) {
      const char a[] = {static_cast<char>(i), '\0'}, b[] = {static_cast<char>(j), '\0'};
      ASSERT_EQ(Orbane::Zeph_Compare(a, b), i == j) << i << ' ' << j;
      ASSERT_EQ(Orbane::Zeph_Compare_L(a, b), fold(i) == fold(j)) << i << ' ' << j;
    }
  }
}
