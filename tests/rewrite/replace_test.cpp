#include <gtest/gtest.h>

#include <string>

#include "rewrite/rewrite_table.h"
#include "support/guarded_buffer.h"
#include "support/table.h"
#include "zeph.h"

using namespace zeph_test;

TEST(Replace, SingleBytes) {
  char text[] = "a.b.c";
  EXPECT_EQ(Orbane::Zeph_Replace(text, '.', '-'), text);
  EXPECT_STREQ(text, "a-b-c");
  Orbane::Zeph_Replace(text, '\0', 'x');
  EXPECT_STREQ(text, "a-b-c") << "the terminator is no byte of the text";
  Orbane::Zeph_Replace(text, '-', '\0');
  EXPECT_EQ(std::string(text, 5), std::string("a\0b\0c", 5)) << "the pass goes on";
  std::string string("a\0b", 3);
  Orbane::Zeph_Replace(string, '\0', '+');
  EXPECT_EQ(string, "a+b");
}

TEST(Replace, StringsGoOnBehindTheReplacement) {
  each_row(onward_rows, [](const auto& row) {
    std::string text = row.text;
    Orbane::Zeph_Replace(text, std::string(row.pattern), std::string(row.replacement));
    EXPECT_EQ(text, row.result);
  });
  std::string zero("a\0b\0", 4), self = "ab";
  Orbane::Zeph_Replace(zero, std::string("\0", 1), std::string("\0\0", 2));
  EXPECT_EQ(zero, std::string("a\0\0b\0\0", 6));
  Orbane::Zeph_Replace(self, self, std::string("x"));
  EXPECT_EQ(self, "x");
  Orbane::Zeph_Replace(self, std::string("x"), self);
  Orbane::Zeph_Remove(self, self);
  EXPECT_EQ(self, "");
}

TEST(Replace, PairsWithoutAnEndLeaveTheText) {
  const std::string text = std::string(40, 'a') + 'b';
  for (const auto& [pattern, replacement] : {std::pair("a", "aa"), std::pair("ab", "ab"),
                                             std::pair("ab", "bbaa"), std::pair("ab", "bba")}) {
    GuardedText room(text);
    Orbane::Zeph_Replace(room.data(), pattern, replacement);
    EXPECT_EQ(room.data(), text) << pattern << " -> " << replacement;
  }
  const std::string half(1500, 'a'), other(1500, 'b');
  GuardedText sorted(half + other);
  Orbane::Zeph_Replace(sorted.data(), "ab", "ba");
  EXPECT_EQ(sorted.data(), other + half) << "many changes, but an end";
  GuardedBuffer grown(2048 + 11 + 1);
  std::string(11, 'a').append("b").copy(grown.data(), 12);
  grown.data()[12] = '\0';
  Orbane::Zeph_Replace(grown.data(), "ab", "bba");
  EXPECT_EQ(grown.data(), std::string(2048, 'b') + std::string(11, 'a'));
}

TEST(Replace, TextsWithoutAnOccurrenceAreNotWritten) {
  static const char constant[] = "abcabc";  // a write faults
  char* const text = const_cast<char*>(constant);
  Orbane::Zeph_Replace(text, 'x', 'y');
  Orbane::Zeph_Replace(text, "x", "yy");
  Orbane::Zeph_Replace(text, "xx", "y");
  Orbane::Zeph_Replace(text, "a", "aa");
  Orbane::Zeph_Remove(text, "x");
  EXPECT_STREQ(constant, "abcabc");
}

TEST(Remove, Bytes) {
  std::string text("a\0xbx\0", 6), all = "xxx";
  Orbane::Zeph_Remove(text, 'x');
  EXPECT_EQ(text, std::string("a\0b\0", 4));
  Orbane::Zeph_Remove(text, '\0');
  EXPECT_EQ(text, std::string("a\0b\0", 4)) << "zero bytes stay";
  Orbane::Zeph_Remove(all, 'x');
  EXPECT_EQ(all, "");
}
