#include <gtest/gtest.h>

#include <string>

#include "rewrite/rewrite_table.h"
#include "support/guarded_buffer.h"
#include "support/table.h"
#include "zeph.h"

using namespace zeph_test;

TEST(Enclosure, EachEndByItself) {
  each_row(enclosed, [](const auto& row) {
    std::string quotes = row.text, brackets = row.text, mark = row.text;
    Orbane::Zeph_Remove_QuoteMark(quotes);
    Orbane::Zeph_Remove_Bracket(brackets);
    Orbane::Zeph_Remove_HeadTail(mark, 'x');
    EXPECT_EQ(quotes, row.quotes);
    EXPECT_EQ(brackets, row.brackets);
    EXPECT_EQ(mark, row.mark);
    GuardedText quote_bytes(row.text), bracket_bytes(row.text);
    Orbane::Zeph_Remove_QuoteMark(quote_bytes.data());
    Orbane::Zeph_Remove_Bracket(bracket_bytes.data());
    EXPECT_STREQ(quote_bytes.data(), row.quotes);
    EXPECT_STREQ(bracket_bytes.data(), row.brackets);
  });
  std::string zero("x\0x", 3);
  Orbane::Zeph_Remove_HeadTail(zero, 'x');
  EXPECT_EQ(zero, std::string("\0", 1)) << "by the stored size";
  char line[] = "(ab)";
  Orbane::Zeph_Remove_Bracket(line);
  EXPECT_EQ(std::string(line, 5), std::string("ab\0\0\0", 5)) << "the tail is zero first";
}

TEST(Enclosure, StringCheckDiffersBetweenItsForms) {
  each_row(quoted, [](const auto& row) {
    GuardedText bytes(row.text);
    Orbane::Zeph_String_Check(bytes.data());
    EXPECT_STREQ(bytes.data(), row.bytes);
    std::string string = row.text, out = "former", same = row.text;
    Orbane::Zeph_String_Check(string);
    EXPECT_EQ(string, row.string);
    EXPECT_EQ(Orbane::Zeph_String_Check(std::string(row.text), out), row.both);
    EXPECT_EQ(out, row.string);
    EXPECT_EQ(Orbane::Zeph_String_Check(same, same), row.both);
    EXPECT_EQ(same, row.string);
    GuardedBuffer room(3);
    EXPECT_EQ(Orbane::Zeph_String_Check(GuardedText(row.text).data(), 2, room.data()), row.both);
    if (row.both) {
      EXPECT_STREQ(room.data(), row.bytes);
    } else {
      EXPECT_TRUE(room.untouched());
    }
  });
}
