#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "search/search_harness.h"
#include "search/slices_table.h"
#include "support/table.h"

using namespace zeph_test;

TEST(SubString, Rows) {
  each_row(slices, [](const auto& row) {
    expect_slice(row.text, row.start, row.count, row.bytes, row.string, row.loose);
  });
  each_row(delimited,
           [](const auto& row) { expect_between(row.text, row.open, row.close, row.between); });
  each_row(paths, [](const auto& row) { expect_name(row.path, row.size, row.name); });
}

TEST(SubString, UncheckedSliceTakesWhatItIsTold) {
  const GuardedText text(std::string("ab\0def", 6), End::bare);
  const GuardedBuffer out(5);
  Orbane::Zeph_Ext_Str_From_Str(text.data(), 2, 4, out.data());
  EXPECT_EQ(std::string(out.data(), 5), std::string("\0def\0", 5));
  for (const int bad : {-1, INT_MIN}) {
    Orbane::Zeph_Ext_Str_From_Str(text.data(), bad, 2, out.data());
    Orbane::Zeph_Ext_Str_From_Str(text.data(), 0, bad, out.data() + 1);
    EXPECT_EQ(std::string(out.data(), 4), std::string("\0\0ef", 4)) << bad;
  }
  char piece[4];
  const GuardedText bare("hello", End::bare);
  EXPECT_TRUE(Orbane::Zeph_Get_SubString(bare.data(), 2, 3, piece)) << "reads what it takes";
  EXPECT_STREQ(piece, "llo");
}
