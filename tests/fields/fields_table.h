// Texts and the fields, words, items and lists that they give.
#ifndef ZEPH_TESTS_FIELDS_FIELDS_TABLE_H
#define ZEPH_TESTS_FIELDS_FIELDS_TABLE_H

#include <cfloat>
#include <climits>
#include <string>
#include <vector>

namespace zeph_test {

using Fields = std::vector<std::string>;

const struct {
  const char* why;
  std::size_t count;
  const char* text;
  int limit;
  Fields fields;
} blank_rows[] = {
    {"the rest goes to the last", 3, "red green blue black", 16, {"red", "green", "blue black"}},
    {"a run is one separator", 3, "red   green", 16, {"red", "green", ""}},
    {"blanks at the start", 3, "  red green", 16, {"", "red", "green"}},
    {"blanks at the end stay in the last", 2, "red green  ", 16, {"red", "green  "}},
    {"nothing but blanks", 3, "   ", 16, {"", "", ""}},
    {"empty", 3, "", 16, {"", "", ""}},
    {"field 1 is cut, the split goes on", 3, "redgreen blue cyan", 3, {"red", "blu", ""}},
    {"a middle field of limit bytes ends it", 3, "red blue cyan", 4, {"red", "blue", ""}},
    {"one byte less does not", 3, "red blue cyan", 5, {"red", "blue", "cyan"}},
    {"the last is cut", 2, "red green blue", 4, {"red", "gree"}},
    {"second middle field of five", 5, "a bb ccc dddd", 3, {"a", "bb", "ccc", "", ""}},
    {"a tab is no blank", 2, "re\td go", 16, {"re\td", "go"}},
};

const struct {
  const char* why;
  std::size_t count;
  const char* text;  // no terminator behind it
  int limit;
  Fields fields;
} bare_rows[] = {
    {"middle field full", 3, "a bcd", 3, {"a", "bcd", ""}},
    {"last field full", 2, "a bcd", 3, {"a", "bcd"}},
    {"limit 0", 2, "", 0, {"", ""}},
};

const struct {
  const char* why;
  std::size_t count;
  char delimiter;
  const char* text;
  int limit;
  Fields fields;
} char_rows[] = {
    {"the rest goes to the last",
     3,
     ',',
     "red,green,blue,black",
     16,
     {"red", "green", "blue,black"}},
    {"two delimiters, an empty field", 3, ',', "red,,green", 16, {"red", "", "green"}},
    {"delimiter at the start", 3, ',', ",red,green", 16, {"", "red", "green"}},
    {"delimiter at the end", 3, ',', "red,green,", 16, {"red", "green", ""}},
    {"empty", 3, ',', "", 16, {"", "", ""}},
    {"too few", 4, ',', "red,green", 16, {"red", "green", "", ""}},
    {"every field is cut, the split goes on",
     3,
     ',',
     "redgreen,blue,cyan",
     3,
     {"red", "blu", "cya"}},
    {"blank as delimiter", 3, ' ', "red green  blue", 16, {"red", "green", " blue"}},
    {"zero is never found", 2, '\0', "red", 16, {"red", ""}},
    {"delimiter from 0x80",
     2,
     '\xC4',
     "a\xC4"
     "b",
     16,
     {"a", "b"}},
};

const struct {
  const char* why;
  bool at_blanks;  // at commas otherwise
  const char* text;
  Fields fields;
} reverse_rows[] = {
    {"two", true, "red green blue", {"blue", "red green"}},
    {"too few", true, "red green", {"green", "red", "", ""}},
    {"blanks at the end", true, "red green  ", {"", "green", "red"}},
    {"blanks at the start stay", true, "  red green", {"green", "  red"}},
    {"five", true, "a b c d e f g", {"g", "f", "e", "d", "a b c"}},
    {"an empty field is left", false, "red,,green", {"green", "red,"}},
    {"an empty field is cut", false, "red,,green", {"green", "", "red"}},
    {"delimiters alone", false, ",,", {"", "", ""}},
};

const struct {
  const char* why;
  const char* text;
  char separator;
  int index, limit;
  const char* result;
} word_rows[] = {
    {"first", "red green blue", ' ', 0, 16, "red"},
    {"last", "red green blue", ' ', 2, 16, "blue"},
    {"behind the last", "red green blue", ' ', 3, 16, ""},
    {"negative", "red green blue", ' ', INT_MIN, 16, ""},
    {"runs and ends count for nothing", "  red   green ", ' ', 1, 16, "green"},
    {"no word behind the end", "  red   green ", ' ', 2, 16, ""},
    {"empty", "", ' ', 0, 16, ""},
    {"blanks only", "   ", ' ', 0, 16, ""},
    {"cut", "redgreen blue", ' ', 0, 3, "red"},
    {"behind a cut word", "redgreen blue", ' ', 1, 3, "blu"},
    {"limit 0", "red green", ' ', 1, 0, ""},
    {"least limit", "red green", ' ', 1, INT_MIN, ""},
    {"delimiters", ",,red,,green,", ',', 1, 16, "green"},
    {"delimiters behind the last", ",,red,,green,", ',', 2, 16, ""},
    {"zero is never found", "a b", '\0', 0, 16, "a b"},
    {"and there is no second word", "a b", '\0', 1, 16, ""},
    {"nor a first one in the empty text", "", '\0', 0, 16, ""},
};

const struct {
  const char* why;
  const char* list;
  char separator;
  const char* value;
  int exact, folded;  // the index that each of the two members gives
} item_rows[] = {
    {"case", "red green blue", ' ', "BLUE", -1, 2},
    {"first of equals", "a,b,a", ',', "a", 0, 0},
    {"an item has no separator", "red green", ' ', "red green", -1, -1},
    {"nothing behind the end", "red green ", ' ', "", -1, -1},
    {"empty item 0", "   ", ' ', "", 0, 0},
    {"first word behind it", " red", ' ', "red", 1, 1},
    {"empty list", "", ',', "", -1, -1},
    {"two delimiters", "red,,", ',', "", 1, 1},
    {"one delimiter", "red,", ',', "", -1, -1},
    {"a prefix is no item", "redder,red", ',', "red", 1, 1},
    {"zero is never found", "a,b", '\0', "A,B", -1, 0},
};

const struct {
  const char* why;
  Fields list;
  const char* joined;
} join_rows[] = {
    {"none", {}, ""},
    {"one", {"red"}, "red"},
    {"two", {"red", "green"}, "red,green"},
    {"empty first", {"", "red"}, ",red"},
    {"empty last", {"red", ""}, "red,"},
    {"one empty", {""}, ""},
    {"two empty", {"", ""}, ","},
};

}  // namespace zeph_test

#endif  // ZEPH_TESTS_FIELDS_FIELDS_TABLE_H
