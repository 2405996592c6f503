#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

#include "support/guarded_buffer.h"
#include "support/refusing_heap.h"
#include "support/stdout_capture.h"
#include "support/table.h"
#include "zeph.h"

using namespace zeph_test;

namespace {

std::string word(const std::string& text, char separator, int index, int limit) {
  GuardedBuffer out(limit > 0 ? static_cast<std::size_t>(limit) + 1 : 1);
  if (separator == ' ') {
    Orbane::Zeph_Seperate_With_Index(GuardedText(text).data(), out.data(), index, limit);
  } else {
    Orbane::Zeph_Seperate_Char_With_Index(GuardedText(text).data(), separator, out.data(), index,
                                          limit);
  }
  EXPECT_TRUE(out.untouched(std::string(out.data()).size() + 1));
  return out.data();
}

struct Found {
  int exact, folded;
  bool operator==(const Found& other) const {
    return exact == other.exact && folded == other.folded;
  }
};

Found find(const std::string& list, char separator, const std::string& value) {
  GuardedText text(list), item(value);
  if (separator == ' ') {
    return {Orbane::Zeph_Seperate_Get_Index(text.data(), item.data()),
            Orbane::Zeph_Seperate_Get_Index_L(text.data(), item.data())};
  }
  return {Orbane::Zeph_Seperate_Char_Get_Index(text.data(), separator, item.data()),
          Orbane::Zeph_Seperate_Char_Get_Index_L(text.data(), separator, item.data())};
}

// The two-field split, again and again.
int model_find(const std::string& list, char separator, const std::string& value) {
  std::vector<char> rest(list.begin(), list.end()), item(list.size() + 1);
  rest.push_back('\0');
  const int limit = static_cast<int>(list.size() + 1);
  for (int index = 0; rest[0] != '\0'; ++index) {
    if (separator == ' ') {
      Orbane::Zeph_Seperate(rest.data(), item.data(), rest.data(), limit);
    } else {
      Orbane::Zeph_Seperate_Char(rest.data(), separator, item.data(), rest.data(), limit);
    }
    if (value == item.data()) return index;
  }
  return -1;
}

}  // namespace

TEST(IndexedFields, WordsByIndex) {
  const struct {
    const char* why;
    const char* text;
    char separator;
    int index, limit;
    const char* result;
  } rows[] = {
      {"first", "red green blue", ' ', 0, 16, "red"},
      {"last", "red green blue", ' ', 2, 16, "blue"},
      {"behind the last", "red green blue", ' ', 3, 16, ""},
      {"negative", "red green blue", ' ', INT_MIN, 16, ""},
      {"runs and ends count for nothing", "  red   green ", ' ', 1, 16, "green"},
      {"no word behind the end", "  red   green ", ' ', 2, 16, ""},
      {"empty", "", ' ', 0, 16, ""},
      {"blanks only", "   ", ' ', 0, 16, ""},
      {"cut", "redgreen blue", ' ', 0, 3, "red"},
      {"behind a cut word", "redgreen blue", ' ', 1, 3, "blu"},
      {"limit 0", "red green", ' ', 1, 0, ""},
      {"least limit", "red green", ' ', 1, INT_MIN, ""},
      {"delimiters", ",,red,,green,", ',', 1, 16, "green"},
      {"delimiters behind the last", ",,red,,green,", ',', 2, 16, ""},
      {"zero is never found", "a b", '\0', 0, 16, "a b"},
      {"and there is no second word", "a b", '\0', 1, 16, ""},
  };
  each_row(rows, [](const auto& row) {
    EXPECT_EQ(word(row.text, row.separator, row.index, row.limit), row.result);
  });
}

TEST(IndexedFields, IndexOfValue) {
  const struct {
    const char* why;
    const char* list;
    char separator;
    const char* value;
    Found found;
  } rows[] = {
      {"case", "red green blue", ' ', "BLUE", {-1, 2}},
      {"first of equals", "a,b,a", ',', "a", {0, 0}},
      {"an item has no separator", "red green", ' ', "red green", {-1, -1}},
      {"nothing behind the end", "red green ", ' ', "", {-1, -1}},
      {"empty item 0", "   ", ' ', "", {0, 0}},
      {"first word behind it", " red", ' ', "red", {1, 1}},
      {"empty list", "", ',', "", {-1, -1}},
      {"two delimiters", "red,,", ',', "", {1, 1}},
      {"one delimiter", "red,", ',', "", {-1, -1}},
      {"a prefix is no item", "redder,red", ',', "red", {1, 1}},
      {"zero is never found", "a,b", '\0', "A,B", {-1, 0}},
  };
  each_row(rows, [](const auto& row) {
    EXPECT_TRUE(find(row.list, row.separator, row.value) == row.found);
  });
  each_text(" ,a", 6, [](const std::string& list) {
    for (const char* const value : {"", "a", "aa", ",", " "}) {
      for (const char separator : {' ', ','}) {
        const int index = model_find(list, separator, value);
        ASSERT_TRUE(find(list, separator, value) == (Found{index, index})) << list << value;
      }
    }
  });
}

TEST(IndexedFields, RefusedWorkBuffersAreReported) {
  REQUIRE_REFUSING_HEAP;
  for (const int refused : {1, 2}) {
    RefusingHeap heap;
    heap.refuse_calloc(1, refused);
    StdoutCapture capture;
    EXPECT_EQ(Orbane::Zeph_Seperate_Char_Get_Index("a,b", ',', "a"), -1);
    EXPECT_EQ(heap.callocs(), 2);
    EXPECT_EQ(capture.text(), banners(refused, "[Zeph] Memory calloc Fail in Zeph_Prepare_Mem"));
  }
}
