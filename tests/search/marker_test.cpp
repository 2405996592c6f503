#include <gtest/gtest.h>

#include "search/search_harness.h"
#include "search/slices_table.h"
#include "support/table.h"

using namespace zeph_test;

TEST(Marker, LeftOfFirstAndRightOfLast) {
  each_row(markers,
           [](const auto& row) { expect_around(row.text, row.marker, row.left, row.right); });
}
