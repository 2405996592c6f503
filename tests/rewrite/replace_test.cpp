#include <gtest/gtest.h>

#include <optional>
#include <random>
#include <string>

#include "rewrite/rewrite_table.h"
#include "support/guarded_buffer.h"
#include "support/refusing_heap.h"
#include "support/table.h"
#include "zeph.h"

using namespace zeph_test;

namespace {

// The rule of the restarting forms, one change at a time; nothing if it takes too many.
struct Rewritten {
  std::string text;
  std::size_t longest;
};

std::optional<Rewritten> rewrite(std::string text, const std::string& pattern,
                                 const std::string& replacement, std::size_t most) {
  std::size_t longest = text.size();
  if (pattern.empty()) return Rewritten{text, longest};
  for (std::size_t at; (at = text.find(pattern)) != std::string::npos;) {
    if (most-- == 0) return std::nullopt;
    text.replace(at, pattern.size(), replacement);
    longest = std::max(longest, text.size());
  }
  return Rewritten{text, longest};
}

// The byte text form in a room of exactly what the rule needs.
void expect_rewritten(const std::string& text, const std::string& pattern,
                      const std::string& replacement) {
  const auto rewritten = rewrite(text, pattern, replacement, 3000);
  if (!rewritten) return;  // a pair without an end, or with one far away
  const Rewritten& expected = *rewritten;
  GuardedBuffer room(expected.longest + 1);
  std::copy(text.c_str(), text.c_str() + text.size() + 1, room.data());
  GuardedText from(pattern), to(replacement);
  Orbane::Zeph_Replace(room.data(), from.data(), to.data());
  ASSERT_EQ(room.data(), expected.text) << text << ": " << pattern << " -> " << replacement;
}

void expect_removed(const std::string& text, const std::string& pattern) {
  const std::string expected = rewrite(text, pattern, "", text.size()).value().text;
  std::string string = text;
  Orbane::Zeph_Remove(string, pattern);
  ASSERT_EQ(string, expected) << text << ": " << pattern;
  GuardedText bytes(text);
  Orbane::Zeph_Remove(bytes.data(), pattern.c_str());
  ASSERT_EQ(bytes.data(), expected) << text << ": " << pattern;
}

}  // namespace

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

TEST(Replace, EveryShortTextAgainstTheRestartRule) {
  each_text("ab", 3, [](const std::string& pattern) {
    each_text("ab", 8, [&](const std::string& text) { expect_removed(text, pattern); });
    each_text("ab", 4, [&](const std::string& replacement) {
      if (!pattern.empty() && replacement.find(pattern) != std::string::npos) return;
      each_text("ab", 6,
                [&](const std::string& text) { expect_rewritten(text, pattern, replacement); });
    });
  });
}

TEST(Replace, LongTextsAgainstTheRestartRule) {
  std::mt19937 random(17);
  const auto text_of = [&](std::size_t size) {
    std::string text;
    while (text.size() < size) text += "abc"[random() % 3];
    return text;
  };
  for (int i = 0; i < 2000; ++i) {
    const std::string text = text_of(random() % 200), pattern = text_of(1 + random() % 6);
    const std::string replacement = text_of(random() % 9);
    expect_removed(text, pattern);
    if (replacement.find(pattern) == std::string::npos) {
      expect_rewritten(text, pattern, replacement);
    }
  }
  const std::string long_pattern = std::string(90, 'a') + 'b', half(45, 'a');
  expect_rewritten(std::string(300, 'a') + 'b' + half, long_pattern, 'b' + std::string(95, 'c'));
  expect_removed(std::string(300, 'a') + std::string(5, 'b'), long_pattern);
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

TEST(Replace, RefusedHeapLeavesTheText) {
  REQUIRE_REFUSING_HEAP;
  for (const long refused : {1L, 2L}) {
    std::string text = "aaaabb";
    text.reserve(100);
    RefusingHeap heap;
    heap.refuse_calloc(refused);
    Orbane::Zeph_Replace(text.data(), "ab", "bca");
    EXPECT_STREQ(text.data(), "aaaabb") << refused;
    EXPECT_EQ(heap.callocs(), refused);
  }
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
