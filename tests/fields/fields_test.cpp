#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "fields/split_harness.h"
#include "support/refusing_heap.h"

using namespace Orbane;
using namespace zeph_test;

TEST(Fields, ReadingStopsWhereTheResultIsDecided) {
  const auto split = [](std::size_t count, const std::string& text, int limit) {
    return split_bytes(blank_cut, count, GuardedText(text, End::bare).data(), limit,
                       room_for(limit));
  };
  const std::string full(700, 'x');
  EXPECT_EQ(split(3, "a bcd", 3), (Fields{"a", "bcd", ""})) << "middle field full";
  EXPECT_EQ(split(2, "a bcd", 3), (Fields{"a", "bcd"})) << "last field full";
  EXPECT_EQ(split(2, "", 0), (Fields{"", ""})) << "nothing to take";
  EXPECT_EQ(split(3, "a " + full, 700), (Fields{"a", full, ""}));
}

TEST(Fields, ListsThatShareTheirItems) {
  Fields own = {"a", "b", "c"}, list = {"x", "a,b,,c,d,e"};
  Zeph_Join(own, '\0', own[1]);
  EXPECT_EQ(own[1], std::string("a\0\0c", 4)) << "an output that is an item joins as empty";
  list.shrink_to_fit();
  Zeph_Split(list[1], ',', list);
  EXPECT_EQ(list, (Fields{"x", "a,b,,c,d,e", "a", "b", "c", "d", "e"})) << "an item of the list";
  static const std::string in_front = "f";  // of the heap, as an address
  Zeph_Split(in_front, ',', own);
  EXPECT_EQ(own.back(), "f");
  REQUIRE_REFUSING_HEAP;
  const std::string item(40, 'i'), text = item + ',' + item;
  Fields kept;
  kept.reserve(2);
  RefusingHeap heap;
  heap.refuse_new(2);
  EXPECT_THROW(Zeph_Split(text, ',', kept), std::bad_alloc);
  EXPECT_EQ(kept, Fields{item}) << "items before a failure stay";
}
