#include <gtest/gtest.h>

#include "fields/split_harness.h"

using namespace zeph_test;

TEST(ReverseFields, Rows) {
  expect_reverse(reverse_blank_cut, 2, "red green blue", {"blue", "red green"});
  expect_reverse(reverse_blank_cut, 4, "red green", {"green", "red", "", ""});
  expect_reverse(reverse_blank_cut, 3, "red green  ", {"", "green", "red"});
  expect_reverse(reverse_blank_cut, 2, "  red green", {"green", "  red"});
  expect_reverse(reverse_blank_cut, 5, "a b c d e f g", {"g", "f", "e", "d", "a b c"});
  expect_reverse(reverse_comma_cut, 2, "red,,green", {"green", "red,"});
  expect_reverse(reverse_comma_cut, 3, "red,,green", {"green", "", "red"});
  expect_reverse(reverse_comma_cut, 3, ",,", {"", "", ""});
  char text[] = "ab", one[3], two[3];
  Orbane::Zeph_Seperate_Char_Reverse(text, '\0', one, two);
  EXPECT_EQ((Fields{one, two}), (Fields{"ab", ""})) << "zero is never found";
}
