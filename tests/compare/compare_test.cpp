#include <gtest/gtest.h>

#include <string>

#include "support/fold.h"
#include "zeph.h"

using namespace Orbane;
using zeph_test::lower;

TEST(Compare, StringsEndAtTheirFirstZeroByte) {
  std::string x("ab\0x", 4), y("ab\0y", 4), plain("AB");
  EXPECT_TRUE(Zeph_Compare(x, y));
  EXPECT_TRUE(Zeph_Compare(x, y, 4));
  EXPECT_TRUE(Zeph_Compare_L(x, plain));
  EXPECT_TRUE(Zeph_Compare_L(x, plain, 4));
  EXPECT_EQ(x, std::string("ab\0x", 4)) << "unchanged";
  std::string blanks("  b \0 ", 6);
  Zeph_Trimed(blanks);
  EXPECT_EQ(blanks, std::string("b \0", 3)) << "a zero byte in a String is no blank";
}
