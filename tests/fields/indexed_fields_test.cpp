#include <gtest/gtest.h>

#include <algorithm>

#include "fields/fields_table.h"
#include "support/guarded_buffer.h"
#include "support/table.h"
#include "zeph.h"

using namespace zeph_test;

TEST(IndexedFields, WordsByIndex) {
  each_row(word_rows, [](const auto& row) {
    const GuardedText text(row.text);
    const GuardedBuffer out(static_cast<std::size_t>(std::max(row.limit, 0)) + 1);
    if (row.separator == ' ') {
      Orbane::Zeph_Seperate_With_Index(text.data(), out.data(), row.index, row.limit);
    } else {
      Orbane::Zeph_Seperate_Char_With_Index(text.data(), row.separator, out.data(), row.index,
                                            row.limit);
    }
    EXPECT_STREQ(out.data(), row.result);
  });
}

TEST(IndexedFields, IndexOfValue) {
  using namespace Orbane;
  each_row(item_rows, [](const auto& row) {
    const GuardedText list(row.list), value(row.value);
    const char at = row.separator;
    const bool blank = at == ' ';
    EXPECT_EQ(blank ? Zeph_Seperate_Get_Index(list.data(), value.data())
                    : Zeph_Seperate_Char_Get_Index(list.data(), at, value.data()),
              row.exact);
    EXPECT_EQ(blank ? Zeph_Seperate_Get_Index_L(list.data(), value.data())
                    : Zeph_Seperate_Char_Get_Index_L(list.data(), at, value.data()),
              row.folded);
  });
}
