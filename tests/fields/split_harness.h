// Runs the overload of a field family that has as many outputs as `count` says, under guard pages.
//
// A family is two overload sets behind one function object: `family(text, limit, outputs...)` with
// char* or std::string& outputs.
#ifndef ZEPH_TESTS_FIELDS_SPLIT_HARNESS_H
#define ZEPH_TESTS_FIELDS_SPLIT_HARNESS_H

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <string>
#include <vector>

#include "support/guarded_buffer.h"
#include "zeph.h"

namespace zeph_test {

using Fields = std::vector<std::string>;

template <typename Family, typename Text, typename Outputs>
void call_split(Family family, std::size_t count, Text&& text, int limit, Outputs& o) {
  switch (count) {
    case 2:
      return family(text, limit, o[0], o[1]);
    case 3:
      return family(text, limit, o[0], o[1], o[2]);
    case 4:
      return family(text, limit, o[0], o[1], o[2], o[3]);
    default:
      return family(text, limit, o[0], o[1], o[2], o[3], o[4]);
  }
}

// The byte text form with outputs of `room` bytes; bytes behind terminators are checked. The last
// output may be the text itself.
enum class Last { apart, in_place };
template <typename Family, typename Char>
Fields split_bytes(Family family, std::size_t count, Char* text, int limit, std::size_t room,
                   Last last = Last::apart) {
  std::deque<GuardedBuffer> rooms;
  std::vector<char*> outputs;
  for (std::size_t i = 0; i < count; ++i) outputs.push_back(rooms.emplace_back(room).data());
  if (last == Last::in_place) outputs.back() = const_cast<char*>(text);
  call_split(family, count, text, limit, outputs);
  const Fields fields(outputs.begin(), outputs.end());
  for (std::size_t i = 0; i + (last == Last::in_place) < count; ++i) {
    EXPECT_TRUE(rooms[i].untouched(fields[i].size() + 1)) << "bytes behind the terminator";
  }
  return fields;
}

inline std::size_t room_for(int limit) {
  return static_cast<std::size_t>(std::max(limit, 0)) + 1;
}

// The String form; output number `alias`, if there is one, is the input object.
template <typename Family>
Fields split_strings(Family family, std::size_t count, const std::string& text, int limit,
                     std::size_t alias = 5) {
  Fields fields(6, "former content");
  fields[alias] = text;
  call_split(family, count, fields[alias], limit, fields);
  fields.resize(count);
  return fields;
}

// All forms give the expected fields.
template <typename Family>
void expect_split(Family family, std::size_t count, const std::string& text, int limit,
                  const Fields& expected) {
  SCOPED_TRACE("'" + text + "' " + std::to_string(count) + " fields, limit " +
               std::to_string(limit));
  const GuardedText apart(text), in_place(text);
  const char *const from = apart.data(), *const own = in_place.data();
  const std::size_t room = room_for(limit);
  ASSERT_EQ(split_bytes(family, count, from, limit, room), expected);
  ASSERT_EQ(split_bytes(family, count, own, limit, room, Last::in_place), expected);
  ASSERT_EQ(split_strings(family, count, text, limit, text.size() % 6), expected);
}

// As expect_split, for a family that cuts from the right and has no limit.
template <typename Family>
void expect_reverse(Family family, std::size_t count, const std::string& text,
                    const Fields& expected) {
  SCOPED_TRACE("'" + text + "' " + std::to_string(count) + " outputs");
  const GuardedText apart(text), in_place(text);
  const std::size_t room = text.size() + 1;
  ASSERT_EQ(split_bytes(family, count, apart.data(), 0, room), expected);
  ASSERT_EQ(apart.data(), text) << "the text is unchanged";
  ASSERT_EQ(split_bytes(family, count, in_place.data(), 0, room, Last::in_place), expected);
}

// The families. Those that cut from the right have no limit; the harness passes one on.
const auto blank_cut = [](const auto& text, int limit, auto&... outputs) {
  Orbane::Zeph_Seperate(text, outputs..., limit);
};

struct CharCut {
  char delimiter;
  template <typename Text, typename... Outputs>
  void operator()(const Text& text, int limit, Outputs&... outputs) const {
    Orbane::Zeph_Seperate_Char(text, delimiter, outputs..., limit);
  }
};

const auto reverse_blank_cut = [](char* text, int, auto&... outputs) {
  Orbane::Zeph_Seperate_Reverse(text, outputs...);
};

const auto reverse_comma_cut = [](char* text, int, auto&... outputs) {
  Orbane::Zeph_Seperate_Char_Reverse(text, ',', outputs...);
};

}  // namespace zeph_test

#endif  // ZEPH_TESTS_FIELDS_SPLIT_HARNESS_H
