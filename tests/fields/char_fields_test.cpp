#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "fields/fields_table.h"
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

}  // namespace

TEST(CharFields, Rows) {
  each_row(char_rows, [](const auto& row) {
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
