#include <gtest/gtest.h>

#include <cerrno>
#include <cfloat>
#include <climits>
#include <cwchar>
#include <new>
#include <string>
#include <utility>

#include "support/guarded_buffer.h"
#include "zeph.h"

using namespace Orbane;
using namespace zeph_test;

TEST(Replace, SingleBytesAndZeroBytes) {
  char text[] = "a.b.c";
  Zeph_Replace(text, '\0', 'x');
  EXPECT_STREQ(text, "a.b.c") << "the terminator is no byte of the text";
  EXPECT_EQ(Zeph_Replace(text, '.', '\0'), text);
  EXPECT_EQ(std::string(text, 5), std::string("a\0b\0c", 5)) << "the pass goes on";
  std::string zero("a\0b\0", 4), self = "ab", kept("a\0xb\0", 5);
  Zeph_Remove(kept, '\0');
  EXPECT_EQ(kept, std::string("a\0xb\0", 5)) << "zero bytes stay";
  Zeph_Replace(zero, std::string("\0", 1), std::string("\0\0", 2));
  EXPECT_EQ(zero, std::string("a\0\0b\0\0", 6));
  Zeph_Replace(self, self, std::string("x"));
  EXPECT_EQ(self, "x");
  Zeph_Replace(self, std::string("x"), self);
  Zeph_Remove(self, self);
  EXPECT_EQ(self, "");
}

TEST(Replace, PairsWithoutAnEndLeaveTheText) {
  const std::string text = std::string(40, 'a') + 'b';
  for (const auto& [pattern, replacement] : {std::pair("a", "aa"), std::pair("ab", "ab"),
                                             std::pair("ab", "bbaa"), std::pair("ab", "bba")}) {
    const GuardedText room(text);
    Zeph_Replace(room.data(), pattern, replacement);
    EXPECT_EQ(room.data(), text) << pattern << " -> " << replacement;
  }
  const std::string half(1500, 'a'), other(1500, 'b');
  const GuardedText sorted(half + other);
  Zeph_Replace(sorted.data(), "ab", "ba");
  EXPECT_EQ(sorted.data(), other + half) << "many changes, but an end";
  const GuardedBuffer grown(2048 + 11 + 1);
  std::string(11, 'a').append("b").copy(grown.data(), 12);
  grown.data()[12] = '\0';
  Zeph_Replace(grown.data(), "ab", "bba");
  EXPECT_EQ(grown.data(), std::string(2048, 'b') + std::string(11, 'a'));
}

TEST(Replace, TextsWithoutAnOccurrenceAreNotWritten) {
  static const char constant[] = "abcabc";  // a write faults
  char* const text = const_cast<char*>(constant);
  Zeph_Replace(text, 'x', 'y');
  Zeph_Replace(text, "x", "yy");
  Zeph_Replace(text, "xx", "y");
  Zeph_Replace(text, "a", "aa");
  Zeph_Remove(text, "x");
  EXPECT_STREQ(constant, "abcabc");
}

TEST(Splicing, SizeBoundsTheText) {
  errno = 9;
  const std::string longer(2100, 'x');
  EXPECT_EQ(Zeph_Splicing(4, "%s", "abcdef"), "abc");
  EXPECT_EQ(Zeph_Splicing(9, "a%cb", 0), "a") << "up to the first zero byte";
  for (const int size : {2047, 2048, 2049, 2100, 2101, 5000, INT_MAX}) {
    EXPECT_EQ(Zeph_Splicing(size, "%s", longer.c_str()),
              longer.substr(0, static_cast<std::size_t>(size) - 1))
        << size;
  }
  EXPECT_EQ(Zeph_Splicing(3000, "%s%c%s", longer.c_str(), 0, "y"), longer);
  for (const int size : {1000, 3000}) {
    EXPECT_EQ(Zeph_Splicing(size, "text%ls", L"\x4E2D").substr(0, 4), "text")
        << "a print that fails leaves what it has";
  }
  EXPECT_EQ(errno, 9);
  EXPECT_THROW(Zeph_Splicing(INT_MIN, "%d", 5), std::bad_alloc);
}

TEST(AlarmText, OneHalfMayFillTheResult) {
  for (const std::size_t size : {510u, 511u, 512u, 2000u}) {
    char text[2001] = "";
    std::string(size, 'a').copy(text, size);
    Zeph_Strcat_Alarm_Append_Text(text, "b");
    EXPECT_EQ(text, (std::string(size, 'a') + " b|").substr(0, 511));
  }
}
