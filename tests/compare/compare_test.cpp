#include <gtest/gtest.h>

#include <string>

#include "compare/compare_table.h"
#include "compare/normalise_harness.h"
#include "support/fold.h"

using namespace zeph_test;

TEST(Compare, Rows) {
  each_row(whole_rows,
           [](const auto& row) { expect_comparison(row.a, row.b, row.exact, row.folded); });
  each_row(prefix_rows,
           [](const auto& row) { expect_comparison(row.a, row.b, row.exact, row.folded, row.n); });
}

TEST(Compare, StringsEndAtTheirFirstZeroByte) {
  std::string x("ab\0x", 4), y("ab\0y", 4), plain("AB");
  EXPECT_TRUE(Orbane::Zeph_Compare(x, y));
  EXPECT_TRUE(Orbane::Zeph_Compare(x, y, 4));
  EXPECT_TRUE(Orbane::Zeph_Compare_L(x, plain));
  EXPECT_TRUE(Orbane::Zeph_Compare_L(x, plain, 4));
  EXPECT_EQ(x, std::string("ab\0x", 4)) << "unchanged";
}

TEST(Compare, EveryPairOfBytes) {
  for (int i = 1; i < 256; ++i) {
    for (int j = 1; j < 256; ++j) {
      const char a[] = {static_cast<char>(i), '\0'}, b[] = {static_cast<char>(j), '\0'};
      ASSERT_EQ(Orbane::Zeph_Compare(a, b), i == j) << i << ' ' << j;
      ASSERT_EQ(Orbane::Zeph_Compare_L(a, b), lower(a[0]) == lower(b[0])) << i << ' ' << j;
    }
  }
}

TEST(CaseFold, Rows) {
  each_row(fold_rows, [](const auto& row) {
    expect_fold(lowers, row.text, row.lower);
    expect_fold(uppers, row.text, row.upper);
  });
}

TEST(BlankTrim, Rows) {
  char text[] = "  Chamber 2 \t ";
  Orbane::Zeph_Trimed(text);
  EXPECT_STREQ(text, "Chamber 2 \t");
  for (std::size_t size = 131; size < 700; size += 37) {
    const std::string blanks(size, ' ');
    expect_trims(blanks);
    expect_trims(blanks + "\xA0" + blanks + ' ' + blanks);
  }
  std::string with_zero("  b \0 ", 6);
  Orbane::Zeph_Trimed(with_zero);
  EXPECT_EQ(with_zero, std::string("b \0", 3)) << "a zero byte in a String is no blank";
}
