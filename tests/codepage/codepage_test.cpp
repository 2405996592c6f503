#include <gtest/gtest.h>

#include <cstring>
#include <new>
#include <random>
#include <string>
#include <vector>

#include "codepage/codepage_data.h"
#include "support/guarded_buffer.h"
#include "support/refusing_heap.h"
#include "support/table.h"
#include "zeph.h"

using namespace zeph_test;
using Orbane::Zeph_ANSI_to_UTF8;
using Orbane::Zeph_UTF8_to_ANSI;

namespace {

// One page for all texts: each stands with its terminator at the inaccessible page behind.
const char* at_edge(const std::string& text) {
  static const GuardedBuffer page(1 << 17);
  char* const start = page.data() + page.size() - text.size() - 1;
  std::memcpy(start, text.c_str(), text.size() + 1);
  return start;
}

void expect_both(const std::string& text) {
  ASSERT_EQ(Zeph_UTF8_to_ANSI(at_edge(text)), expected_ansi(text)) << testing::PrintToString(text);
  ASSERT_EQ(Zeph_ANSI_to_UTF8(at_edge(text)), expected_utf8(text)) << testing::PrintToString(text);
}

std::string times(int count, const std::string& text) {
  std::string result;
  for (int i = 0; i < count; ++i) result += text;
  return result;
}

}  // namespace

TEST(CodePage, KnownTexts) {
  // clang-format off
  const struct { const char *why, *utf8, *ansi, *back; } rows[] = {
      {"ASCII", "\x01 A~\x7F", "\x01 A~\x7F", "\x01 A~\x7F"},
      {"Chinese", "\xE6\xB8\xA9\xE5\xBA\xA6 25", "\xCE\xC2\xB6\xC8 25", "\xE6\xB8\xA9\xE5\xBA\xA6 25"},
      {"two bytes in UTF-8", "\xCE\xB1\xC3\xA9", "\xA6\xC1\xA8\xA6", "\xCE\xB1\xC3\xA9"},
      {"one byte in ANSI", "\xE2\x82\xAC\xEF\xA3\xB5", "\x80\xFF", "\xE2\x82\xAC\xEF\xA3\xB5"},
      {"look-alikes", "\xC2\xAA\xE3\x8E\xA1\xC2\xA5", "a\xA9O\xA3\xA4", "a\xE3\x8E\xA1\xEF\xBF\xA5"},
      {"not in the code page", "\xC2\xA9|\xEF\xBF\xBD|\xEA\xB0\x80", "?|?|?", "?|?|?"},
      {"beyond U+FFFF", "a\xF0\x9F\x98\x80z", "a??z", "a??z"},
      {"maximal parts", "a\xF1\x80\x80\xE1\x80\xC2" "b\x80" "c\x80\xBF" "d", "a???b?c??d", "a???b?c??d"},
      {"overlong", "\xC0\xAF\xE0\x80\xBF\xF0\x81\x82\x41", "????????A", "????????A"},
      {"halves of a surrogate pair", "\xED\xA0\xBD\xED\xB8\x80", "??????", "??????"},
      {"beyond U+10FFFF", "\xF4\x90\x80\x80\xFF", "?????", "?????"},
      {"cut short", "\xE6\xB8", "?", "?"},
      {"cut short in four bytes", "a\xF0\x9F\x98", "a?", "a?"},
  };
  // clang-format on
  each_row(rows, [](const auto& row) {
    EXPECT_EQ(Zeph_UTF8_to_ANSI(at_edge(row.utf8)), row.ansi);
    EXPECT_EQ(Zeph_ANSI_to_UTF8(at_edge(row.ansi)), row.back);
  });
  EXPECT_EQ(Zeph_ANSI_to_UTF8(at_edge("\x81\x30|\x81\x7F|\xFE\xFF|\x81")), "?|?|?|?");
}

TEST(CodePage, EveryUnit) {
  ASSERT_EQ(code_page().bytes_of.size(), 24482u);
  std::string all, all_ansi;
  for (unsigned unit = 1; unit <= 0xFFFF; ++unit) {
    const auto found = code_page().bytes_of.find(unit);
    const bool surrogate = unit >= 0xD800 && unit <= 0xDFFF;
    const std::string bytes = surrogate                             ? "???"
                              : found == code_page().bytes_of.end() ? "?"
                                                                    : found->second;
    ASSERT_EQ(Zeph_UTF8_to_ANSI(at_edge(utf8(unit))), bytes) << unit;
    all += utf8(unit);
    all_ansi += bytes;
  }
  for (const char* shift : {"", "a", "ab", "\xE6\xB8\xA9"})
    EXPECT_EQ(Zeph_UTF8_to_ANSI((shift + all).c_str()), Zeph_UTF8_to_ANSI(shift) + all_ansi);
}

TEST(CodePage, EveryByteAndEveryPair) {
  std::string pairs;
  for (int first = 1; first <= 0xFF; ++first) {
    expect_both({static_cast<char>(first)});
    for (int second = 1; second <= 0xFF; ++second)
      expect_both({static_cast<char>(first), static_cast<char>(second)});
  }
  for (const auto& [bytes, unit] : code_page().unit_of)
    if (unit != 0) pairs += bytes;
  std::string there = Zeph_ANSI_to_UTF8(pairs);
  EXPECT_EQ(there, expected_utf8(pairs));
  EXPECT_EQ(Zeph_UTF8_to_ANSI(there), pairs);
}

TEST(CodePage, EveryShortText) {
  each_text("a\x80\x90\xA0\xB8\xC3\xE0\xE4\xED\xF0\xF4", 4, expect_both);
  each_text("a@\x30\x80\x81\xFF", 6, expect_both);
}

TEST(CodePage, EveryByteAnywhereInARun) {
  for (const std::string& run : {times(6, "\xE6\xB8\xA9"), times(8, "\xCE\xC2")}) {
    for (std::size_t at = 0; at < run.size(); ++at) {
      for (int byte = 1; byte <= 0xFF; ++byte) {
        std::string text = run;
        text[at] = static_cast<char>(byte);
        expect_both(text);
      }
    }
  }
}

// Long texts of every mixture, so that each kind of character meets each boundary of the work.
TEST(CodePage, LongMixtures) {
  const std::vector<std::string> utf8_parts = {"x",
                                               "plain text of some length",
                                               std::string(1500, 'y'),
                                               "\xE6\xB8\xA9",
                                               times(9, "\xE5\xBA\xA6"),
                                               times(500, "\xE4\xB8\xAD\xE6\x96\x87"),
                                               "\xC3\xA9",
                                               "\xE2\x82\xAC",
                                               "\xC2\xAA",
                                               "\xF0\x9F\x98\x80",
                                               "\xE4\xB8",
                                               "\xA0"};
  const std::vector<std::string> ansi_parts = {"x",
                                               "plain text of some length",
                                               std::string(1500, 'y'),
                                               "\xCE\xC2",
                                               times(9, "\xB6\xC8"),
                                               times(500, "\xD6\xD0\xCE\xC4"),
                                               "\xA6\xC1",
                                               "\x80",
                                               times(700, "\xFF"),
                                               "\x81\x30",
                                               "\x81\x40"};
  std::mt19937 random(936);
  for (int round = 0; round < 100; ++round) {
    for (const auto* parts : {&utf8_parts, &ansi_parts}) {
      std::string text;
      for (auto left = random() % 60; left > 0; --left) text += (*parts)[random() % parts->size()];
      expect_both(text);
    }
  }
}

TEST(CodePage, StringFormsEndAtAZeroByteAndLeaveTheSource) {
  std::string utf8_text("\xE6\xB8\xA9\0\xE6", 5), ansi_text("\xCE\0\xC2", 3);
  const std::string utf8_copy = utf8_text, ansi_copy = ansi_text;
  EXPECT_EQ(Zeph_UTF8_to_ANSI(utf8_text), "\xCE\xC2");
  EXPECT_EQ(Zeph_ANSI_to_UTF8(ansi_text), "?");
  EXPECT_EQ(utf8_text, utf8_copy);
  EXPECT_EQ(ansi_text, ansi_copy);
  for (const char* nothing : {static_cast<const char*>(nullptr), ""}) {
    EXPECT_EQ(Zeph_UTF8_to_ANSI(nothing), "");
    EXPECT_EQ(Zeph_ANSI_to_UTF8(nothing), "");
  }
}

TEST(CodePage, TheResultIsTheOnlyBlock) {
  REQUIRE_REFUSING_HEAP;
  for (const int count : {30, 4000}) {
    const std::string text = times(count, "\xE6\xB8\xA9"), ansi = times(count, "\xCE\xC2");
    RefusingHeap heap;
    Zeph_UTF8_to_ANSI(text.c_str());
    EXPECT_EQ(heap.news(), 1);
    Zeph_ANSI_to_UTF8(ansi.c_str());
    EXPECT_EQ(heap.news(), 2);
    heap.refuse_new(1);
    EXPECT_THROW(Zeph_UTF8_to_ANSI(text.c_str()), std::bad_alloc);
    EXPECT_EQ(heap.callocs(), 0);
  }
}
