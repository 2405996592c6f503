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

struct AtDelimiter {
  char delimiter;
  template <typename Text, typename... Outputs>
  void operator()(const Text& text, int limit, Outputs&... outputs) const {
    Orbane::Zeph_Seperate_Char(text, delimiter, outputs..., limit);
  }
};

const AtDelimiter commas{','};

// The rule, a byte at a time.
Fields model(std::size_t count, const std::string& text, char delimiter, std::size_t limit) {
  Fields fields(count);
  std::size_t field = 0;
  for (const char byte : text) {
    if (byte == delimiter && field < count - 1) {
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
    {"limit 0", 3, ',', "a,b,c", 0, {"", "", ""}},
    {"least limit", 2, ',', "a,b", INT_MIN, {"", ""}},
};

}  // namespace

TEST(CharFields, Rows) {
  each_row(rows, [](const auto& row) {
    const AtDelimiter family{row.delimiter};
    EXPECT_EQ(split_bytes(family, row.count, GuardedText(row.text).data(), row.limit), row.fields);
    EXPECT_EQ(split_in_place(family, row.count, row.text, row.limit), row.fields);
    EXPECT_EQ(split_strings(family, row.count, row.text, row.limit), row.fields);
  });
}

TEST(CharFields, EveryShortText) {
  each_text(",a\xC4", 7, [](const std::string& text) {
    for (std::size_t count = 2; count <= 5; ++count) {
      for (const int limit : {0, 1, 2, 9}) {
        const Fields expected = model(count, text, ',', static_cast<std::size_t>(limit));
        ASSERT_EQ(split_in_place(commas, count, text, limit), expected) << text << count << limit;
        ASSERT_EQ(split_strings(commas, count, text, limit, text.size() % 6), expected) << text;
      }
    }
  });
}

TEST(CharFields, LongFields) {
  for (std::size_t size = 1; size < 1200; size < 140 ? ++size : size += 101) {
    const std::string word(size, 'w');
    const std::string text = word + ",," + word + ',' + word + ",x";
    for (const std::size_t limit : {size / 2 + 1, size, size + 5}) {
      for (std::size_t count = 2; count <= 5; ++count) {
        const Fields expected = model(count, text, ',', limit);
        const int bound = static_cast<int>(limit);
        ASSERT_EQ(split_bytes(commas, count, GuardedText(text).data(), bound), expected) << size;
        ASSERT_EQ(split_in_place(commas, count, text, bound), expected) << size;
      }
    }
  }
}

TEST(CharFields, StringFormsUseWorkBuffers) {
  EXPECT_EQ(split_strings(commas, 2, std::string("a,b\0c", 5), 9), (Fields{"a", "b"}));
  REQUIRE_REFUSING_HEAP;
  RefusingHeap heap;
  heap.refuse_calloc(2);
  StdoutCapture capture;
  EXPECT_EQ(split_strings(commas, 4, "a,b,c,d", 9), Fields(4, "former content"));
  EXPECT_EQ(heap.callocs(), 4);
  EXPECT_EQ(capture.text(), banner("[Zeph] Memory calloc Fail in Zeph_Prepare_Mem"));
}
