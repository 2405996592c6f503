#include <gtest/gtest.h>

#include <new>
#include <string>
#include <vector>

#include "support/refusing_heap.h"

using namespace Orbane;
using namespace zeph_test;
using Fields = std::vector<std::string>;

TEST(Fields, Lists) {
  Fields own = {"a", "b", "c"}, list = {"x", "a,b,,c,d,e"};
  Zeph_Join(own, '\0', own[1]);
  EXPECT_EQ(own[1], std::string("a\0\0c", 4)) << "an output that is an item joins as empty";
  list.shrink_to_fit();
  Zeph_Split(list[1], ',', list);
  EXPECT_EQ(list, (Fields{"x", "a,b,,c,d,e", "a", "b", "c", "d", "e"})) << "an item of the list";
  const std::string value(64, 'v'), around = 'x' + value;
  EXPECT_EQ(Zeph_Seperate_Char_Get_Index(around.c_str(), ',', value.c_str()), -1) << "one item";
  std::string roomy;
  roomy.reserve(2000);
  const Fields two(2, std::string(300, 'i'));
  Zeph_Join(two, '|', roomy);
  EXPECT_EQ(roomy, two[0] + '|' + two[1]);
  static const std::string in_front = "f";  // of the heap, as an address
  Zeph_Split(in_front, ',', own);
  EXPECT_EQ(own.back(), "f");
  REQUIRE_REFUSING_HEAP;
  const std::string item(40, 'i'), text = item + ',' + item;
  Fields kept;
  kept.reserve(2);
  new_gate.refuse(2);
  EXPECT_THROW(Zeph_Split(text, ',', kept), std::bad_alloc);
  refuse_no_more();
  EXPECT_EQ(kept, Fields{item}) << "items before a failure stay";
}
