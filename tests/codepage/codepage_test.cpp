#include <gtest/gtest.h>

#include <new>
#include <random>
#include <string>

#include "codepage/codepage_data.h"
#include "codepage/known_texts_table.h"
#include "support/guarded_buffer.h"
#include "support/refusing_heap.h"
#include "support/table.h"
#include "zeph.h"

using namespace zeph_test;
using Orbane::Zeph_ANSI_to_UTF8;
using Orbane::Zeph_UTF8_to_ANSI;

namespace {

void expect_both(const std::string& text) {
  ASSERT_EQ(Zeph_UTF8_to_ANSI(at_edge(text)), expected_ansi(text)) << testing::PrintToString(text);
  ASSERT_EQ(Zeph_ANSI_to_UTF8(at_edge(text)), expected_utf8(text)) << testing::PrintToString(text);
}

std::string times(unsigned count, const std::string& text) {
  std::string result;
  for (; count > 0; --count) result += text;
  return result;
}

}  // namespace

TEST(CodePage, KnownTexts) {
  each_row(known_texts, [](const auto& row) {
    EXPECT_EQ(Zeph_UTF8_to_ANSI(at_edge(row.utf8)), row.ansi);
    EXPECT_EQ(Zeph_ANSI_to_UTF8(at_edge(row.ansi)), row.back);
  });
  EXPECT_EQ(Zeph_ANSI_to_UTF8(at_edge("\x81\x30|\x81\x7F|\xFE\xFF|\x81")), "?|?|?|?");
}

TEST(CodePage, EveryUnit) {
  ASSERT_EQ(code_page().bytes_of.size(), 24482u);
  std::string all;
  for (unsigned unit = 1; unit <= 0xFFFF; ++unit) {
    ASSERT_NO_FATAL_FAILURE(expect_both(utf8(unit)));
    all += utf8(unit);
  }
  for (const char* shift : {"", "a", "ab", "\xE6\xB8\xA9"}) expect_both(shift + all);
}

TEST(CodePage, EveryByteAndEveryPair) {
  std::string all;
  for (int first = 1; first <= 0xFF; ++first) {
    for (int second = 0; second <= 0xFF; ++second) {
      const std::string pair = {static_cast<char>(first), static_cast<char>(second)};
      ASSERT_NO_FATAL_FAILURE(expect_both(pair.c_str()));
      if (code_page().unit_of.count(pair)) all += pair;
    }
  }
  expect_both(all);
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

// So that each kind of character, and runs of it, meet each boundary of the work.
TEST(CodePage, LongMixtures) {
  std::mt19937 random(936);
  for (int round = 0; round < 200; ++round) {
    const auto& parts = round % 2 == 0 ? utf8_parts : ansi_parts;
    std::string text;
    for (auto left = random() % 30; left > 0; --left) {
      const unsigned count[] = {1, 1, 1, 9, 300};
      text += times(count[random() % 5], parts[random() % parts.size()]);
    }
    expect_both(text);
  }
}

TEST(CodePage, StringFormsEndAtAZeroByteAndLeaveTheSource) {
  const std::string utf8_text("\xE6\xB8\xA9\0\xE6", 5), ansi_text("\xCE\0\xC2", 3);
  std::string utf8_source = utf8_text, ansi_source = ansi_text;
  EXPECT_EQ(Zeph_UTF8_to_ANSI(utf8_source), "\xCE\xC2");
  EXPECT_EQ(Zeph_ANSI_to_UTF8(ansi_source), "?");
  EXPECT_EQ(utf8_source + ansi_source, utf8_text + ansi_text);
  EXPECT_EQ(Zeph_UTF8_to_ANSI(static_cast<const char*>(nullptr)), "");
  EXPECT_EQ(Zeph_ANSI_to_UTF8(static_cast<const char*>(nullptr)), "");
}

TEST(CodePage, TheResultIsTheOnlyBlock) {
  REQUIRE_REFUSING_HEAP;
  for (const unsigned count : {30u, 4000u}) {
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
