#include <gtest/gtest.h>

#include <string>

#include "compare/normalise_harness.h"

using namespace zeph_test;

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
