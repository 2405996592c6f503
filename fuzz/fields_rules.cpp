// Fields from the left and the right, fields by index, lists.
#include <deque>

#include "rules.h"

using namespace Orbane;

namespace zeph_test {
namespace {

using Fields = std::vector<std::string>;

std::string list_text(Draw& draw) {
  const char* const alphabets[] = {" ,a", " a\xC4", ",,a", "  ,,aaaaaaaaaaaaaaaaaaaa", ""};
  return draw.text(300, alphabets[draw.below(5)]);
}

// Words of some KiB, which go in pieces.
std::string long_words(Draw& draw) {
  std::string text;
  for (std::size_t words = 1 + draw.below(5); words > 0; --words) {
    text += std::string(draw.below(20000), 'w') + (draw.yes() ? " " : ",  ");
  }
  return text;
}

// A cut is all overloads of a function as one: `cut(text, outputs...)`. Its byte text forms, in
// rooms of so many bytes; the last output may be the text itself.
template <typename Cut>
void expect_bytes(Cut cut, char* text, bool in_place, std::size_t room, const Fields& expected) {
  std::deque<GuardedBuffer> rooms;
  std::vector<char*> outputs;
  while (rooms.size() < expected.size()) outputs.push_back(rooms.emplace_back(room).data());
  if (in_place) outputs.back() = text;
  with_first<5>(expected.size(), outputs, [&](auto&... o) { cut(text, o...); });
  ASSERT_EQ(Fields(outputs.begin(), outputs.end()), expected);
  for (std::size_t i = 0; i + in_place < expected.size(); ++i) {
    EXPECT_TRUE(rooms[i].untouched(expected[i].size() + 1)) << "bytes behind the terminator";
  }
}

template <typename Cut>
void expect_bytes(Cut cut, const std::string& text, std::size_t room, const Fields& expected) {
  SCOPED_TRACE("'" + text + "' " + std::to_string(expected.size()) + " fields, room " +
               std::to_string(room));
  const GuardedText apart(text), in_place(text);
  expect_bytes(cut, apart.data(), false, room, expected);
  EXPECT_EQ(apart.data(), text) << "the text is unchanged";
  expect_bytes(cut, in_place.data(), true, room, expected);
}

// The String forms too, for which a zero byte ends the text; one of the outputs may be the text.
template <typename Cut>
void expect_fields(Cut cut, const std::string& text, std::size_t limit, const Fields& expected) {
  expect_bytes(cut, text, limit + 1, expected);
  Fields outputs(6, std::string(29 * text.size() % 401, 'f'));  // shorter and longer than any field
  const std::string& own = outputs[text.size() % 6] = text + '\0' + std::string(limit / 2, ',');
  with_first<5>(expected.size(), outputs, [&](auto&... o) { cut(own, o...); });
  outputs.resize(expected.size());
  EXPECT_EQ(outputs, expected) << text;
}

// The first blank ends field 1, before others blanks are skipped; a later field that is full ends
// the split. Of the text is left what decides the fields: nothing behind it is looked at.
Fields cut_at_blanks(std::size_t count, std::string& text, std::size_t limit) {
  Fields fields(count);
  if (limit == 0) text.clear();
  std::size_t field = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    std::string& now = fields[field];
    if (text[i] == ' ' && field > 0 && now.empty()) continue;
    if (text[i] == ' ' && field < count - 1) {
      ++field;
      continue;
    }
    if (now.size() < limit) now += text[i];
    if (field > 0 && now.size() == limit) text.resize(i + 1);
  }
  return fields;
}

// Each delimiter ends exactly one field; bytes above the limit are dropped.
Fields cut_at_delimiters(std::size_t count, const std::string& text, char delimiter,
                         std::size_t limit) {
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

// Cut at the last separator, again and again.
Fields cut_from_right(std::size_t count, std::string text, char separator) {
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

// What the two-field cut takes off the front, again and again; separators in a row are one for
// words.
Fields items_of(const std::string& list, char separator) {
  Fields items;
  for (std::size_t at = 0; at < list.size();) {
    const std::size_t end = std::min(list.find(separator, at), list.size());
    items.push_back(list.substr(at, end - at));
    at = std::min(end + 1, list.size());
    while (separator == ' ' && at < list.size() && list[at] == ' ') ++at;
  }
  return items;
}

void fields_from_the_left(Draw& draw) {
  const bool many_bytes = draw.below(16) == 0;
  const std::size_t count = 2 + draw.below(4);
  const std::size_t limit = draw.below(many_bytes ? 20000 : draw.yes() ? 7 : 400);
  const char delimiter = draw.yes() ? ',' : static_cast<char>(draw.byte());
  const std::string text = many_bytes ? long_words(draw) : list_text(draw);
  const auto most = static_cast<int>(limit);
  expect_fields(
      [&](const auto& from, auto&... to) { Zeph_Seperate_Char(from, delimiter, to..., most); },
      text, limit, cut_at_delimiters(count, text, delimiter, limit));
  const auto cut = [&](const auto& from, auto&... to) { Zeph_Seperate(from, to..., most); };
  std::string read = text;
  const Fields fields = cut_at_blanks(count, read, limit);
  expect_fields(cut, text, limit, fields);
  const GuardedText bare(read, read.size() < text.size() ? End::bare : End::terminated);
  expect_bytes(cut, bare.data(), false, limit + 1, fields);
}

void fields_from_the_right(Draw& draw) {
  const std::size_t count = 2 + draw.below(4);
  const std::string text = list_text(draw);
  expect_bytes([](char* from, auto&... to) { Zeph_Seperate_Reverse(from, to...); }, text,
               text.size() + 1, cut_from_right(count, text, ' '));
  expect_bytes([](char* from, auto&... to) { Zeph_Seperate_Char_Reverse(from, ',', to...); }, text,
               text.size() + 1, cut_from_right(count, text, ','));
}

void words_by_index(Draw& draw) {
  std::string text = list_text(draw);
  while (text.size() < 2000 && draw.yes()) text += text;  // many words are passed in parts
  const char separator = draw.yes() ? ' ' : ',';
  Fields words = items_of(text, separator);
  words.erase(std::remove(words.begin(), words.end(), ""), words.end());
  const int last = static_cast<int>(words.size());
  const int index = draw.yes() ? draw.between(0, last) : draw.any_int();
  const int limit = draw.between(-1, 140);
  const auto most = static_cast<std::size_t>(std::max(limit, 0));
  const bool there = index >= 0 && static_cast<std::size_t>(index) < words.size();
  const GuardedText from(text);
  const auto get = [&](char* out) {
    separator == ' ' ? Zeph_Seperate_With_Index(from.data(), out, index, limit)
                     : Zeph_Seperate_Char_With_Index(from.data(), ',', out, index, limit);
  };
  EXPECT_EQ(left_in_room(most + 1, get),
            there ? words[static_cast<std::size_t>(index)].substr(0, most) : "");
}

int index_in(const Fields& items, const std::string& value) {
  const auto at = std::find(items.begin(), items.end(), value);
  return at == items.end() ? -1 : static_cast<int>(at - items.begin());
}

void index_of_value(Draw& draw) {
  const std::string list = list_text(draw);
  const char separator = " ,a"[draw.below(3)];  // a letter has another case
  const Fields items = items_of(list, separator);
  std::string value = draw.piece(3, " ,aA");
  if (!items.empty() && draw.yes()) value = items[draw.below(items.size())];
  Fields lowered;
  for (const std::string& item : items) lowered.push_back(folded(item));
  const GuardedText text(list), wanted(value);
  const char *const from = text.data(), *const what = wanted.data();
  EXPECT_EQ(separator == ' ' ? Zeph_Seperate_Get_Index(from, what)
                             : Zeph_Seperate_Char_Get_Index(from, separator, what),
            index_in(items, value));
  EXPECT_EQ(separator == ' ' ? Zeph_Seperate_Get_Index_L(from, what)
                             : Zeph_Seperate_Char_Get_Index_L(from, separator, what),
            index_in(lowered, folded(value)));
}

// The items of a split, joined, are the text without its empty items.
void split_and_join(Draw& draw) {
  const std::size_t longest = draw.below(8) == 0 ? 3000 : 300;
  const std::string text = draw.yes() ? draw.bytes(longest) : list_text(draw);
  const char delimiter = draw.yes() ? ',' : '\0';
  Fields expected = {"held"}, list = expected;
  std::string joined = "held", out = "former";
  for (const std::string& item : items_of(text, delimiter)) {
    if (item.empty()) continue;
    expected.push_back(item);
    joined += "|" + item;
  }
  Zeph_Split(text, delimiter, list);
  EXPECT_EQ(list, expected);
  Zeph_Join(list, '|', out);
  EXPECT_EQ(out, joined);
  EXPECT_EQ(Zeph_Join(list, '|'), joined);
  Zeph_Join({text}, '|', out);
  EXPECT_EQ(out, text);
  EXPECT_EQ(Zeph_Join({text}, '|'), text);
  // Into an item of the list, which counts as an empty one.
  const std::size_t own = draw.below(list.size());
  expected[own].clear();
  Zeph_Join(list, '|', list[own]);
  EXPECT_EQ(list[own], Zeph_Join(expected, '|'));
}

}  // namespace

const Family fields_family{
    "fields",
    {fields_from_the_left, fields_from_the_right, words_by_index, index_of_value, split_and_join}};

}  // namespace zeph_test
