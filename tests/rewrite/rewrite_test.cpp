#include <gtest/gtest.h>

#include <cerrno>
#include <climits>
#include <string>
#include <utility>

#include "support/guarded_buffer.h"
#include "zeph.h"

using namespace Orbane;
using namespace zeph_test;

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
  const std::string run(11, 'a'), growing = run + 'b';
  const auto grow = [](char* room) { Zeph_Replace(room, "ab", "bba"); };
  EXPECT_EQ(left_in_room(2048 + 11 + 1, grow, &growing), std::string(2048, 'b') + run);
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

TEST(Replace, TakesManyOccurrencesNearAndFar) {
  std::string text, longer, shorter, none;
  for (std::size_t i = 0; i < 300; ++i) {
    const std::string between(2 * i, '-');
    text += between + "ss";
    longer += between + "<s>";
    shorter += between + "z";
    none += between;
  }
  std::string bytes = text + std::string(301, '\0'), string = text, own = "ab";
  Zeph_Replace(bytes.data(), "ss", "<s>");
  EXPECT_EQ(bytes.c_str(), longer);
  Zeph_Replace(string, "ss", "<s>");
  EXPECT_EQ(string, longer);
  Zeph_Replace(string, "<s>", "z");
  EXPECT_EQ(string, shorter);
  Zeph_Remove(text, "ss");
  EXPECT_EQ(text, none);
  Zeph_Replace(none, std::string(70, '-'), "+");
  EXPECT_EQ(none, std::string(300 * 299 / 70, '+') + std::string(300 * 299 % 70, '-'));
  Zeph_Replace(own, "a", own);
  EXPECT_EQ(own, "abb");
}

TEST(Splicing, SizeBoundsTheText) {
  errno = 9;
  const std::string longer(2100, 'x');
  for (const int size : {2047, 2048, 2049, 2100, 2101, 5000, INT_MAX}) {
    EXPECT_EQ(Zeph_Splicing(size, "%s", longer.c_str()),
              longer.substr(0, static_cast<std::size_t>(size) - 1))
        << size;
  }
  EXPECT_EQ(Zeph_Splicing(3000, "%s%c%s", longer.c_str(), 0, "y"), longer);
  const std::string piece(2100, 'p');  // the third one finds the room that the second one made
  EXPECT_EQ(Zeph_Splicing(8192, "%s%s%s", piece.c_str(), piece.c_str(), piece.c_str()),
            piece + piece + piece);
  for (const int size : {1000, 3000}) {
    EXPECT_EQ(Zeph_Splicing(size, "text%ls", L"\x4E2D").substr(0, 4), "text")
        << "a print that fails leaves what it has";
  }
  EXPECT_EQ(errno, 9);
}
