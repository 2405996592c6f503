#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <string>

#include "fields/split_harness.h"
#include "support/refusing_heap.h"
#include "support/table.h"

using namespace Orbane;
using namespace zeph_test;

TEST(Fields, AtBlanks) {
  each_row(blank_rows, [](const auto& row) {
    expect_split(blank_cut, row.count, row.text, row.limit, row.fields);
  });
  each_row(bare_rows, [](const auto& row) {  // reading stops where the result is decided
    const GuardedText text(row.text, End::bare);
    EXPECT_EQ(split_bytes(blank_cut, row.count, text.data(), row.limit, room_for(row.limit)),
              row.fields);
  });
  const std::string full(700, 'x');
  const GuardedText middle("a " + full, End::bare);
  EXPECT_EQ(split_bytes(blank_cut, 3, middle.data(), 700, 701), (Fields{"a", full, ""}));
}

TEST(Fields, AtAByte) {
  each_row(char_rows, [](const auto& row) {
    expect_split(CharCut{row.delimiter}, row.count, row.text, row.limit, row.fields);
  });
}

TEST(Fields, LimitsBelowOneAndZeroBytes) {
  const CharCut commas{','};
  for (const int limit : {0, -1, INT_MIN}) {
    for (const std::size_t count : {2u, 5u}) {
      expect_split(blank_cut, count, "a b", limit, Fields(count));
      expect_split(commas, count, "a,b", limit, Fields(count));
    }
  }
  EXPECT_EQ(split_strings(blank_cut, 2, std::string("a b\0c", 5), 9), (Fields{"a", "b"}));
  EXPECT_EQ(split_strings(commas, 2, std::string("a,b\0c", 5), 9), (Fields{"a", "b"}));
  char text[] = "ab", one[3], two[3];
  Zeph_Seperate_Char_Reverse(text, '\0', one, two);
  EXPECT_EQ((Fields{one, two}), (Fields{"ab", ""})) << "zero is never found";
}

TEST(Fields, FromTheRight) {
  each_row(reverse_rows, [](const auto& row) {
    if (row.at_blanks) {
      expect_reverse(reverse_blank_cut, row.fields.size(), row.text, row.fields);
    } else {
      expect_reverse(reverse_comma_cut, row.fields.size(), row.text, row.fields);
    }
  });
}

TEST(Fields, ByIndex) {
  each_row(word_rows, [](const auto& row) {
    const GuardedBuffer out(static_cast<std::size_t>(std::max(row.limit, 0)) + 1);
    if (row.separator == ' ') {
      Zeph_Seperate_With_Index(row.text, out.data(), row.index, row.limit);
    } else {
      Zeph_Seperate_Char_With_Index(row.text, row.separator, out.data(), row.index, row.limit);
    }
    EXPECT_STREQ(out.data(), row.result);
  });
  each_row(item_rows, [](const auto& row) {
    const bool blank = row.separator == ' ';
    EXPECT_EQ(blank ? Zeph_Seperate_Get_Index(row.list, row.value)
                    : Zeph_Seperate_Char_Get_Index(row.list, row.separator, row.value),
              row.exact);
    EXPECT_EQ(blank ? Zeph_Seperate_Get_Index_L(row.list, row.value)
                    : Zeph_Seperate_Char_Get_Index_L(row.list, row.separator, row.value),
              row.folded);
  });
}

TEST(Fields, Lists) {
  each_row(join_rows, [](const auto& row) { EXPECT_EQ(Zeph_Join(row.list, ','), row.joined); });
  Fields own = {"a", "b", "c"}, list = {"x", "a,b,,c,d,e"};
  Zeph_Join(own, '\0', own[1]);
  EXPECT_EQ(own[1], std::string("a\0\0c", 4)) << "an output that is an item joins as empty";
  list.shrink_to_fit();
  static const std::string in_front = "f";  // of the heap, as an address
  Zeph_Split(in_front, ',', own);
  EXPECT_EQ(own.back(), "f");
  Zeph_Split(list[1], ',', list);
  EXPECT_EQ(list, (Fields{"x", "a,b,,c,d,e", "a", "b", "c", "d", "e"})) << "an item of the list";
  REQUIRE_REFUSING_HEAP;
  const std::string item(40, 'i'), text = item + ',' + item;
  Fields kept;
  kept.reserve(2);
  RefusingHeap heap;
  heap.refuse_new(2);
  EXPECT_THROW(Zeph_Split(text, ',', kept), std::bad_alloc);
  EXPECT_EQ(kept, Fields{item}) << "items before a failure stay";
}
