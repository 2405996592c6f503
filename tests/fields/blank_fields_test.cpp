#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "fields/split_harness.h"
#include "zeph.h"

using namespace zeph_test;

namespace {

const auto blanks = [](const auto& text, int limit, auto&... outputs) {
  Orbane::Zeph_Seperate(text, outputs..., limit);
};

// The rule, a byte at a time.
Fields model(std::size_t count, const std::string& text, std::size_t limit) {
  Fields fields(count);
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
};

}  // namespace

TEST(BlankFields, Rows) {
  each_row(rows, [](const auto& row) {
    expect_split(blanks, row.count, row.text, static_cast<std::size_t>(row.limit), row.fields);
  });
  for (const int limit : {0, -1, INT_MIN}) {
    EXPECT_EQ(split_bytes(blanks, 2, "a b", limit), (Fields{"", ""})) << limit;
    EXPECT_EQ(split_strings(blanks, 5, "a b", limit), (Fields{"", "", "", "", ""})) << limit;
  }
}

TEST(BlankFields, EveryTextAgainstThePlainRule) {
  expect_rule(blanks, model, " a\xC4", ' ');
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

TEST(BlankFields, StringFormsUseWorkBuffers) {
  EXPECT_EQ(split_strings(blanks, 2, std::string("a b\0c", 5), 9), (Fields{"a", "b"}));
  REQUIRE_REFUSING_HEAP;
  expect_refusals_reported(blanks, "a b c d e");
}
