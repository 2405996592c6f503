#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "fields/fields_table.h"
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

}  // namespace

TEST(BlankFields, Rows) {
  each_row(blank_rows, [](const auto& row) {
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
