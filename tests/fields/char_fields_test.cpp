#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "fields/split_harness.h"
#include "support/table.h"

using namespace zeph_test;

TEST(CharFields, Rows) {
  each_row(char_rows, [](const auto& row) {
    expect_split(CharCut{row.delimiter}, row.count, row.text, static_cast<std::size_t>(row.limit),
                 row.fields);
  });
  const CharCut commas{','};
  for (const int limit : {0, -1, INT_MIN}) {
    EXPECT_EQ(split_bytes(commas, 2, "a,b", limit), (Fields{"", ""})) << limit;
    EXPECT_EQ(split_strings(commas, 5, "a,b", limit), (Fields{"", "", "", "", ""})) << limit;
  }
  EXPECT_EQ(split_strings(commas, 2, std::string("a,b\0c", 5), 9), (Fields{"a", "b"}));
}
