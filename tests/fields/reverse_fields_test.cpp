#include <gtest/gtest.h>

#include <string>

#include "fields/split_harness.h"
#include "zeph.h"

using namespace zeph_test;

namespace {

// The reverse families have no limit; the harness passes one on.
const auto blanks = [](char* text, int, auto&... outputs) {
  Orbane::Zeph_Seperate_Reverse(text, outputs...);
};

const auto commas = [](char* text, int, auto&... outputs) {
  Orbane::Zeph_Seperate_Char_Reverse(text, ',', outputs...);
};

// The rule: cut at the last separator, again and again.
Fields model(std::size_t count, std::string text, char separator) {
  Fields fields(count);
  std::size_t k = 0;
  for (; k < count - 1; ++k) {
    std::size_t at = text.rfind(separator);
    if (at == std::string::npos) break;
    fields[k] = text.substr(at + 1);
    while (separator == ' ' && at > 0 && text[at - 1] == separator) --at;
    text.resize(at);
  }
  fields[k] = text;
  return fields;
}

template <typename Family>
void expect_reverse(Family family, std::size_t count, const std::string& text,
                    const Fields& expected) {
  SCOPED_TRACE("'" + text + "' " + std::to_string(count) + " outputs");
  for (const Edge edge : {Edge::front, Edge::back}) {
    for (const bool in_place : {false, true}) {
      GuardedText buffer(text, End::terminated, edge);
      std::vector<std::string> rooms(count, std::string(text.size() + 1, '#'));
      std::vector<char*> outputs;
      for (std::string& room : rooms) outputs.push_back(room.data());
      if (in_place) outputs.back() = buffer.data();
      call_split(family, count, buffer.data(), 0, outputs);
      ASSERT_EQ(Fields(outputs.begin(), outputs.end()), expected);
      if (!in_place) {
        ASSERT_EQ(buffer.data(), text) << "the text is unchanged";
      }
    }
  }
}

}  // namespace

TEST(ReverseFields, Rows) {
  expect_reverse(blanks, 2, "red green blue", {"blue", "red green"});
  expect_reverse(blanks, 4, "red green", {"green", "red", "", ""});
  expect_reverse(blanks, 3, "red green  ", {"", "green", "red"});
  expect_reverse(blanks, 2, "  red green", {"green", "  red"});
  expect_reverse(blanks, 5, "a b c d e f g", {"g", "f", "e", "d", "a b c"});
  expect_reverse(commas, 2, "red,,green", {"green", "red,"});
  expect_reverse(commas, 3, "red,,green", {"green", "", "red"});
  expect_reverse(commas, 3, ",,", {"", "", ""});
  char text[] = "ab", one[3], two[3];
  Orbane::Zeph_Seperate_Char_Reverse(text, '\0', one, two);
  EXPECT_EQ((Fields{one, two}), (Fields{"ab", ""})) << "zero is never found";
}

TEST(ReverseFields, EveryShortTextAgainstThePlainRule) {
  for (std::size_t count = 2; count <= 5; ++count) {
    each_text(" ,a", 6, [&](const std::string& text) {
      expect_reverse(blanks, count, text, model(count, text, ' '));
      expect_reverse(commas, count, text, model(count, text, ','));
    });
    for (std::size_t size = 1; size < 140; ++size) {
      const std::string word(size, 'w');
      const std::string text = word + " ," + word + "," + word;
      expect_reverse(commas, count, text, model(count, text, ','));
    }
  }
}
