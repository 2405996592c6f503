#include <gtest/gtest.h>

#include <string>

#include "search/slices_table.h"
#include "support/table.h"
#include "zeph.h"

using namespace zeph_test;

// All forms of one name, the object as its own output among them.
TEST(Marker, LeftOfFirstAndRightOfLast) {
  each_row(markers, [](const auto& row) {
    std::string left = row.text, right = row.text, own_left = row.marker, own_right = row.marker;
    Orbane::Zeph_Left(left, row.marker, left);
    Orbane::Zeph_Right(right, row.marker, right);
    Orbane::Zeph_Left(row.text, own_left, own_left);
    Orbane::Zeph_Right(row.text, own_right, own_right);
    EXPECT_EQ(left, row.left);
    EXPECT_EQ(right, row.right);
    EXPECT_EQ(own_left, row.left);
    EXPECT_EQ(own_right, row.right);
    EXPECT_EQ(Orbane::Zeph_Left(row.text, row.marker), row.left);
    EXPECT_EQ(Orbane::Zeph_Right(row.text, row.marker), row.right);
    if (row.marker.size() != 1) return;
    left = right = row.text;
    Orbane::Zeph_Left(left, row.marker[0], left);
    Orbane::Zeph_Right(right, row.marker[0], right);
    EXPECT_EQ(left, row.left);
    EXPECT_EQ(right, row.right);
    EXPECT_EQ(Orbane::Zeph_Left(row.text, row.marker[0]), row.left);
    EXPECT_EQ(Orbane::Zeph_Right(row.text, row.marker[0]), row.right);
  });
}
