#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fields/fields_table.h"
#include "support/refusing_heap.h"
#include "support/table.h"
#include "zeph.h"

using namespace zeph_test;
using List = std::vector<std::string>;

TEST(Lists, SplitTakesAnItemOfTheListItself) {
  List list = {"x", "a,b,,c,d,e"};
  list.shrink_to_fit();
  Orbane::Zeph_Split(list[1], ',', list);
  EXPECT_EQ(list, (List{"x", "a,b,,c,d,e", "a", "b", "c", "d", "e"})) << "its own item";
}

TEST(Lists, JoinPutsTheDelimiterBetweenItems) {
  each_row(join_rows, [](const auto& row) {
    std::string out = "former";
    Orbane::Zeph_Join(row.list, ',', out);
    EXPECT_EQ(out, row.joined);
    EXPECT_EQ(Orbane::Zeph_Join(row.list, ','), row.joined);
  });
  List own = {"a", "b", "c"};
  Orbane::Zeph_Join(own, '\0', own[1]);
  EXPECT_EQ(own[1], std::string("a\0\0c", 4)) << "an output that is an item joins as empty";
}

TEST(Lists, ItemsBeforeAFailureStay) {
  REQUIRE_REFUSING_HEAP;
  const std::string item(40, 'i');
  const std::string text = item + ',' + item + ',' + item;
  List list;
  list.reserve(3);
  RefusingHeap heap;
  heap.refuse_new(2);
  EXPECT_THROW(Orbane::Zeph_Split(text, ',', list), std::bad_alloc);
  EXPECT_EQ(list, List{item});
}
