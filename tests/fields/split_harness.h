// Runs the overload of a field family that has as many outputs as `count` says, under guard pages.
//
// A family is two overload sets behind one function object: `family(text, limit, outputs...)` with
// char* or std::string& outputs.
#ifndef ZEPH_TESTS_FIELDS_SPLIT_HARNESS_H
#define ZEPH_TESTS_FIELDS_SPLIT_HARNESS_H

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "fields/fields_table.h"
#include "support/guarded_buffer.h"
#include "zeph.h"

namespace zeph_test {

template <typename Family, typename Text, typename Outputs, std::size_t... i>
void call_split(Family family, Text&& text, int limit, Outputs& outputs,
                std::index_sequence<i...>) {
  family(text, limit, outputs[i]...);
}

template <typename Family, typename Text, typename Outputs>
void call_split(Family family, std::size_t count, Text&& text, int limit, Outputs& outputs) {
  switch (count) {
    case 2:
      return call_split(family, text, limit, outputs, std::make_index_sequence<2>());
    case 3:
      return call_split(family, text, limit, outputs, std::make_index_sequence<3>());
    case 4:
      return call_split(family, text, limit, outputs, std::make_index_sequence<4>());
    default:
      return call_split(family, text, limit, outputs, std::make_index_sequence<5>());
  }
}

// The byte text form with rooms of exactly limit + 1 bytes; bytes behind terminators are checked.
template <typename Family>
Fields split_bytes(Family family, std::size_t count, const char* text, int limit) {
  const auto room = static_cast<std::size_t>(std::max(limit, 0)) + 1;
  std::vector<std::unique_ptr<GuardedBuffer>> rooms;
  std::vector<char*> outputs;
  for (std::size_t i = 0; i < count; ++i) {
    rooms.push_back(std::make_unique<GuardedBuffer>(room));
    outputs.push_back(rooms.back()->data());
  }
  call_split(family, count, text, limit, outputs);
  Fields fields;
  for (const auto& output : rooms) {
    fields.emplace_back(output->data());
    EXPECT_TRUE(output->untouched(fields.back().size() + 1)) << "bytes behind the terminator";
  }
  return fields;
}

// The byte text form with the text itself as the last output.
template <typename Family>
Fields split_in_place(Family family, std::size_t count, const std::string& text, int limit) {
  const auto room = static_cast<std::size_t>(std::max(limit, 0)) + 1;
  std::vector<std::vector<char>> rooms(count, std::vector<char>(room, '#'));
  std::vector<char*> outputs;
  for (auto& output : rooms) outputs.push_back(output.data());
  GuardedText buffer(text);
  outputs.back() = buffer.data();
  call_split(family, count, static_cast<const char*>(buffer.data()), limit, outputs);
  return Fields(outputs.begin(), outputs.end());
}

// The String form; output number `alias`, if there is one, is the input object.
template <typename Family>
Fields split_strings(Family family, std::size_t count, const std::string& text, int limit,
                     std::size_t alias = 5) {
  Fields fields(5, "former content");
  if (alias < count) {
    fields[alias] = text;
    call_split(family, count, fields[alias], limit, fields);
  } else {
    call_split(family, count, text, limit, fields);
  }
  fields.resize(count);
  return fields;
}

// All forms give the expected fields.
template <typename Family>
void expect_split(Family family, std::size_t count, const std::string& text, std::size_t limit,
                  const Fields& expected) {
  SCOPED_TRACE("'" + text + "' " + std::to_string(count) + " fields, limit " +
               std::to_string(limit));
  const int bound = static_cast<int>(limit);
  ASSERT_EQ(split_bytes(family, count, GuardedText(text).data(), bound), expected);
  ASSERT_EQ(split_in_place(family, count, text, bound), expected);
  ASSERT_EQ(split_strings(family, count, text, bound, text.size() % 6), expected);
}

// As expect_split, for a family that cuts from the right and has no limit.
template <typename Family>
void expect_reverse(Family family, std::size_t count, const std::string& text,
                    const Fields& expected) {
  SCOPED_TRACE("'" + text + "' " + std::to_string(count) + " outputs");
  for (const bool in_place : {false, true}) {
    const GuardedText buffer(text);
    std::vector<std::unique_ptr<GuardedText>> rooms;
    std::vector<char*> outputs;
    for (std::size_t i = 0; i < count; ++i) {
      rooms.push_back(std::make_unique<GuardedText>(std::string(text.size(), '#')));
      outputs.push_back(in_place && i == count - 1 ? buffer.data() : rooms.back()->data());
    }
    call_split(family, count, buffer.data(), 0, outputs);
    ASSERT_EQ(Fields(outputs.begin(), outputs.end()), expected);
    if (!in_place) {
      ASSERT_EQ(buffer.data(), text) << "the text is unchanged";
    }
  }
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
