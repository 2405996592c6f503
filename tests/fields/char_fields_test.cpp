#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "fields/split_harness.h"
#include "zeph.h"

using namespace zeph_test;

namespace {

struct AtDelimiter {
  char delimiter;
  template <typename Text, typename... Outputs>
  void operator()(const Text& text, int limit, Outputs&... outputs) const {
    Orbane::Zeph_Seperate_Char(text, delimiter, outputs..., limit);
  }
};

const AtDelimiter commas{','};

// The rule, a byte at a time.
Fields model(std::size_t count, const std::string& text, std::size_t limit) {
  Fields fields(count);
  std::size_t field = 0;
  for (const char byte : text) {
    if (byte == ',' && field < count - 1) {
      ++field;
    } else if (fields[field].size() < limit) {
      fields[field] += byte;
    }
  }
  return fields;
}

const struct {
  const char* why;
  std::size_t count;
  char delimiter;
  const char* text;
  int limit;
  Fields fields;
} rows[] = {
    {"the rest goes to the last",
     3,
     ',',
     "red,green,blue,black",
     16,
     {"red", "green", "blue,black"}},
    {"two delimiters, an empty field", 3, ',', "red,,green", 16, {"red", "", "green"}},
    {"delimiter at the start", 3, ',', ",red,green", 16, {"", "red", "green"}},
    {"delimiter at the end", 3, ',', "red,green,", 16, {"red", "green", ""}},
    {"empty", 3, ',', "", 16, {"", "", ""}},
    {"too few", 4, ',', "red,green", 16, {"red", "green", "", ""}},
    {"every field is cut, the split goes on",
     3,
     ',',
     "redgreen,blue,cyan",
     3,
     {"red", "blu", "cya"}},
    {"blank as delimiter", 3, ' ', "red green  blue", 16, {"red", "green", " blue"}},
    {"zero is never found", 2, '\0', "red", 16, {"red", ""}},
    {"delimiter from 0x80",
     2,
     '\xC4',
     "a\xC4"
     "b",
     16,
     {"a", "b"}},
};

}  // namespace

TEST(CharFields, Rows) {
  each_row(rows, [](const auto& row) {
    expect_split(AtDelimiter{row.delimiter}, row.count, row.text,
                 static_cast<std::size_t>(row.limit), row.fields);
  });
  for (const int limit : {0, -1, INT_MIN}) {
    EXPECT_EQ(split_bytes(commas, 2, "a,b", limit), (Fields{"", ""})) << limit;
    EXPECT_EQ(split_strings(commas, 5, "a,b", limit), (Fields{"", "", "", "", ""})) << limit;
  }
}

TEST(CharFields, EveryTextAgainstThePlainRule) {
  expect_rule(commas, model, ",a\xC4", ',');
}

TEST(CharFields, StringFormsUseWorkBuffers) {
  EXPECT_EQ(split_strings(commas, 2, std::string("a,b\0c", 5), 9), (Fields{"a", "b"}));
  REQUIRE_REFUSING_HEAP;
  expect_refusals_reported(commas, "a,b,c,d,e");
}
