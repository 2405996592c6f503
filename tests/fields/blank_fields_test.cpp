#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "fields/split_harness.h"
#include "support/refusing_heap.h"
#include "support/stdout_capture.h"
#include "support/table.h"
#include "zeph.h"

using namespace zeph_test;

namespace {

const auto blanks = [](const auto& text, int limit, auto&... outputs) {
  Orbane::Zeph_Seperate(text, outputs..., limit);
};

// The rule, a byte at a time.
Fields model(std::size_t count, const std::string& text, std::size_t limit) {
  Fields fields(count);
  if (limit == 0) return fields;
  std::size_t field = 0;
  for (const char byte : text) {
    std::string& now = fields[field];
    const bool last = field == count - 1;
    if (byte == ' ' && field > 0 && now.empty()) continue;
    if (byte == ' ' && !last) {
      ++field;
      continue;
    }
    if (now.size() < limit) now += byte;
    if (field > 0 && now.size() == limit) break;
  }
  return fields;
}

const struct {
  const char* why;
  std::size_t count;
  const char* text;
  int limit;
  Fields fields;
} rows[] = {
    {"the rest goes to the last", 3, "red green blue black", 16, {"red", "green", "blue black"}},
    {"a run is one separator", 3, "red   green", 16, {"red", "green", ""}},
    {"blanks at the start", 3, "  red green", 16, {"", "red", "green"}},
    {"blanks at the end stay in the last", 2, "red green  ", 16, {"red", "green  "}},
    {"nothing but blanks", 3, "   ", 16, {"", "", ""}},
    {"empty", 3, "", 16, {"", "", ""}},
    {"field 1 is cut, the split goes on", 3, "redgreen blue cyan", 3, {"red", "blu", ""}},
    {"a middle field of limit bytes ends it", 3, "red blue cyan", 4, {"red", "blue", ""}},
    {"one byte less does not", 3, "red blue cyan", 5, {"red", "blue", "cyan"}},
    {"the last is cut", 2, "red green blue", 4, {"red", "gree"}},
    {"second middle field of five", 5, "a bb ccc dddd", 3, {"a", "bb", "ccc", "", ""}},
    {"a tab is no blank", 2, "re\td go", 16, {"re\td", "go"}},
    {"limit 0", 2, "a b", 0, {"", ""}},
    {"least limit", 4, "a b c d", INT_MIN, {"", "", "", ""}},
};

}  // namespace

TEST(BlankFields, Rows) {
  each_row(rows, [](const auto& row) {
    EXPECT_EQ(split_bytes(blanks, row.count, GuardedText(row.text).data(), row.limit), row.fields);
    EXPECT_EQ(split_in_place(blanks, row.count, row.text, row.limit), row.fields);
    EXPECT_EQ(split_strings(blanks, row.count, row.text, row.limit), row.fields);
  });
}

TEST(BlankFields, EveryShortText) {
  each_text(" a\xC4", 7, [](const std::string& text) {
    for (std::size_t count = 2; count <= 5; ++count) {
      for (const int limit : {1, 2, 3, 9}) {
        const Fields expected = model(count, text, static_cast<std::size_t>(limit));
        ASSERT_EQ(split_in_place(blanks, count, text, limit), expected) << text << count << limit;
        ASSERT_EQ(split_strings(blanks, count, text, limit, text.size() % 6), expected) << text;
      }
    }
  });
}

// Lengths around the steps of wide instructions, in each kind of field.
TEST(BlankFields, LongFields) {
  for (std::size_t size = 1; size < 1200; size < 140 ? ++size : size += 101) {
    const std::string word(size, 'w');
    const std::string text = word + "  " + word + ' ' + word + " x";
    for (const std::size_t limit : {size / 2 + 1, size, size + 1, size + 5}) {
      for (std::size_t count = 2; count <= 5; ++count) {
        const Fields expected = model(count, text, limit);
        const int bound = static_cast<int>(limit);
        ASSERT_EQ(split_bytes(blanks, count, GuardedText(text).data(), bound), expected) << size;
        ASSERT_EQ(split_in_place(blanks, count, text, bound), expected) << size;
      }
    }
  }
}

TEST(BlankFields, ReadingStopsWhereTheResultIsDecided) {
  const struct {
    const char* why;
    std::size_t count;
    const char* text;  // no terminator behind it
    int limit;
    Fields fields;
  } bare_rows[] = {
      {"middle field full", 3, "a bcd", 3, {"a", "bcd", ""}},
      {"last field full", 2, "a bcd", 3, {"a", "bcd"}},
      {"limit 0", 2, "", 0, {"", ""}},
  };
  each_row(bare_rows, [](const auto& row) {
    GuardedText text(row.text, End::bare);
    EXPECT_EQ(split_bytes(blanks, row.count, text.data(), row.limit), row.fields);
  });
  const std::string full(700, 'x');
  GuardedText middle("a " + full, End::bare);
  EXPECT_EQ(split_bytes(blanks, 3, middle.data(), 700), (Fields{"a", full, ""}));
}

TEST(BlankFields, StringsEndAtTheirFirstZeroByte) {
  EXPECT_EQ(split_strings(blanks, 2, std::string("a b\0c", 5), 9), (Fields{"a", "b"}));
}

TEST(BlankFields, RefusedWorkBuffersAreReportedAndOutputsKept) {
  REQUIRE_REFUSING_HEAP;
  for (std::size_t count = 2; count <= 5; ++count) {
    for (long first = 1; first <= static_cast<long>(count); ++first) {
      const int refused = static_cast<int>(count) - static_cast<int>(first) + 1;
      RefusingHeap heap;
      heap.refuse_calloc(first, refused);
      StdoutCapture capture;
      const Fields fields = split_strings(blanks, count, "a b c d e", 9);
      EXPECT_EQ(heap.callocs(), static_cast<long>(count)) << "every buffer is requested";
      EXPECT_EQ(fields, Fields(count, "former content"));
      EXPECT_EQ(capture.text(), banners(refused, "[Zeph] Memory calloc Fail in Zeph_Prepare_Mem"));
    }
  }
}
