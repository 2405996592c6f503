#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <utility>
#include <vector>

#include "fields/fields_table.h"
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

using Found = std::pair<int, int>;  // exact, folded

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
  each_row(word_rows, [](const auto& row) {
    EXPECT_EQ(word(row.text, row.separator, row.index, row.limit), row.result);
  });
}

TEST(IndexedFields, IndexOfValue) {
  each_row(item_rows, [](const auto& row) {
    EXPECT_EQ(find(row.list, row.separator, row.value), Found(row.exact, row.folded));
  });
  each_text(" ,a", 6, [](const std::string& list) {
    for (const char* const value : {"", "a", "aa", ",", " "}) {
      for (const char separator : {' ', ','}) {
        const int index = model_find(list, separator, value);
        ASSERT_EQ(find(list, separator, value), Found(index, index)) << list << value;
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
    EXPECT_EQ(heap.last_calloc(), sizeof "a,b");
    EXPECT_EQ(capture.text(), banners(refused, "[Zeph] Memory calloc Fail in Zeph_Prepare_Mem"));
  }
}
