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
