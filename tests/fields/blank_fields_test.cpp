#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "fields/split_harness.h"
#include "support/table.h"

using namespace zeph_test;

TEST(BlankFields, Rows) {
  each_row(blank_rows, [](const auto& row) {
    expect_split(blank_cut, row.count, row.text, static_cast<std::size_t>(row.limit), row.fields);
  });
  for (const int limit : {0, -1, INT_MIN}) {
    EXPECT_EQ(split_bytes(blank_cut, 2, "a b", limit), (Fields{"", ""})) << limit;
    EXPECT_EQ(split_strings(blank_cut, 5, "a b", limit), (Fields{"", "", "", "", ""})) << limit;
  }
  EXPECT_EQ(split_strings(blank_cut, 2, std::string("a b\0c", 5), 9), (Fields{"a", "b"}));
}

TEST(BlankFields, ReadingStopsWhereTheResultIsDecided) {
  each_row(bare_rows, [](const auto& row) {
    const GuardedText text(row.text, End::bare);
    EXPECT_EQ(split_bytes(blank_cut, row.count, text.data(), row.limit), row.fields);
  });
  const std::string full(700, 'x');
  const GuardedText middle("a " + full, End::bare);
  EXPECT_EQ(split_bytes(blank_cut, 3, middle.data(), 700), (Fields{"a", full, ""}));
}
