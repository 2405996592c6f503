// Fields from the left and the right, fields by index, lists.
#include <algorithm>

#include "fields/split_harness.h"
#include "rules.h"
#include "support/fold.h"
#include "zeph.h"

namespace zeph_test {
namespace {

constexpr const char* alphabets[] = {" ,a", " a\xC4", ",,a", "  ,,aaaaaaaaaaaaaaaaaaaa", ""};

std::string list_text(Draw& draw) {
  return draw.text(300, alphabets[draw.below(5)]);
}

// The first blank ends field 1, before others blanks are skipped; a later field that is full ends
// the split.
Fields cut_at_blanks(std::size_t count, const std::string& text, std::size_t limit) {
  Fields fields(count);
  std::size_t field = 0;
  for (const char byte : text) {
    std::string& now = fields[field];
    if (byte == ' ' && field > 0 && now.empty()) continue;
    if (byte == ' ' && field < count - 1) {
      ++field;
      continue;
    }
    if (now.size() < limit) now += byte;
    if (field > 0 && now.size() == limit) break;
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

void blank_fields(Draw& draw) {
  const std::size_t count = 2 + draw.below(4), limit = 1 + draw.below(draw.yes() ? 6 : 140);
  const std::string text = list_text(draw);
  expect_split(blank_cut, count, text, static_cast<int>(limit), cut_at_blanks(count, text, limit));
}

void char_fields(Draw& draw) {
  const std::size_t count = 2 + draw.below(4), limit = 1 + draw.below(draw.yes() ? 6 : 140);
  const char delimiter = draw.yes() ? ',' : static_cast<char>(draw.byte());
  const std::string text = list_text(draw);
  expect_split(CharCut{delimiter}, count, text, static_cast<int>(limit),
               cut_at_delimiters(count, text, delimiter, limit));
}

void reverse_fields(Draw& draw) {
  const std::size_t count = 2 + draw.below(4);
  const std::string text = list_text(draw);
  expect_reverse(reverse_blank_cut, count, text, cut_from_right(count, text, ' '));
  expect_reverse(reverse_comma_cut, count, text, cut_from_right(count, text, ','));
}

void words_by_index(Draw& draw) {
  const std::string text = list_text(draw);
  const char separator = draw.yes() ? ' ' : ',';
  Fields words = items_of(text, separator);
  words.erase(std::remove(words.begin(), words.end(), ""), words.end());
  const int index = draw.yes() ? draw.between(0, 4) : draw.any_int();
  const int limit = draw.between(-1, 140);
  const bool there = index >= 0 && static_cast<std::size_t>(index) < words.size() && limit > 0;
  GuardedBuffer out(static_cast<std::size_t>(std::max(limit, 0)) + 1);
  if (separator == ' ') {
    Orbane::Zeph_Seperate_With_Index(GuardedText(text).data(), out.data(), index, limit);
  } else {
    Orbane::Zeph_Seperate_Char_With_Index(GuardedText(text).data(), ',', out.data(), index, limit);
  }
  const std::string word = there ? words[static_cast<std::size_t>(index)] : "";
  EXPECT_EQ(out.data(), word.substr(0, static_cast<std::size_t>(std::max(limit, 0))));
  EXPECT_TRUE(out.untouched(std::string(out.data()).size() + 1));
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
  if (separator == ' ') {
    EXPECT_EQ(Orbane::Zeph_Seperate_Get_Index(text.data(), wanted.data()), index_in(items, value));
    EXPECT_EQ(Orbane::Zeph_Seperate_Get_Index_L(text.data(), wanted.data()),
              index_in(lowered, folded(value)));
  } else {
    EXPECT_EQ(Orbane::Zeph_Seperate_Char_Get_Index(text.data(), separator, wanted.data()),
              index_in(items, value));
    EXPECT_EQ(Orbane::Zeph_Seperate_Char_Get_Index_L(text.data(), separator, wanted.data()),
              index_in(lowered, folded(value)));
  }
}

// The items of a split, joined, are the text without its empty items.
void split_and_join(Draw& draw) {
  const std::string text = draw.yes() ? draw.bytes(300) : list_text(draw);
  const char delimiter = draw.yes() ? ',' : '\0';
  Fields expected = {"held"};
  for (const std::string& item : items_of(text, delimiter)) {
    if (!item.empty()) expected.push_back(item);
  }
  Fields list = {"held"};
  Orbane::Zeph_Split(text, delimiter, list);
  EXPECT_EQ(list, expected);
  std::string joined;
  for (const std::string& item : expected) joined += (joined.empty() ? "" : "|") + item;
  std::string out = "former";
  Orbane::Zeph_Join(list, '|', out);
  EXPECT_EQ(out, joined);
  EXPECT_EQ(Orbane::Zeph_Join(list, '|'), joined);
}

}  // namespace

Rules fields_rules() {
  return {{"blank fields", blank_fields},
          {"fields at a byte", char_fields},
          {"fields from the right", reverse_fields},
          {"words by index", words_by_index},
          {"index of a value", index_of_value},
          {"split and join", split_and_join}};
}

}  // namespace zeph_test
