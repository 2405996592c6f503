// Texts before and after a change.
#ifndef ZEPH_TESTS_REWRITE_REWRITE_TABLE_H
#define ZEPH_TESTS_REWRITE_REWRITE_TABLE_H

#include <cfloat>
#include <climits>
#include <string>
#include <vector>

namespace zeph_test {

const struct {
  const char* why;
  const char* text;
  const char* quotes;    // Zeph_Remove_QuoteMark
  const char* brackets;  // Zeph_Remove_Bracket
  const char* mark;      // Zeph_Remove_HeadTail with 'x'
} enclosed[] = {
    {"empty", "", "", "", ""},
    {"no marks", "ab", "ab", "ab", "ab"},
    {"marks inside stay", "a\"(x)'b", "a\"(x)'b", "a\"(x)'b", "a\"(x)'b"},
    {"nothing pairs the quotes", "\"ab'", "ab", "\"ab'", "\"ab'"},
    {"head alone", "'ab", "ab", "'ab", "'ab"},
    {"one byte at each end", "\"\"ab\"\"", "\"ab\"", "\"\"ab\"\"", "\"\"ab\"\""},
    {"one quote", "\"", "", "\"", "\""},
    {"two quotes", "''", "", "''", "''"},
    {"nothing pairs the brackets", "<ab]", "<ab]", "ab", "<ab]"},
    {"outer brackets", "((ab))", "((ab))", "(ab)", "((ab))"},
    {"tail alone", "ab}", "ab}", "ab", "ab}"},
    {"square", "[ab)", "[ab)", "ab", "[ab)"},
    {"curly", "{ab>", "{ab>", "ab", "{ab>"},
    {"one opening bracket", "(", "(", "", "("},
    {"one closing bracket stays", ")", ")", ")", ")"},
    {"a closing bracket is no head", ")ab(", ")ab(", ")ab(", ")ab("},
    {"a named mark", "xabx", "xabx", "xabx", "ab"},
    {"one named mark", "x", "x", "x", ""},
    {"two named marks", "xx", "xx", "xx", ""},
};

const struct {
  const char* why;
  const char* text;
  const char* bytes;   // byte text, in place
  const char* string;  // String, in place and to an output
  bool both;
} quoted[] = {
    {"both ends", "\"ab\"", "ab", "ab", true},
    {"head", "\"ab", "\"ab", "ab", false},
    {"tail", "ab\"", "ab\"", "ab", false},
    {"none", "ab", "ab", "ab", false},
    {"two quotes", "\"\"", "", "", true},
    {"one quote", "\"", "\"", "", false},
    {"empty", "", "", "", false},
    {"single quotes", "'ab'", "'ab'", "'ab'", false},
};

const struct {
  const char* why;
  const char* text;
  const char* pattern;
  const char* replacement;
  const char* result;
} onward_rows[] = {
    {"formed at a junction", "aaabb", "ab", "b", "aabb"},
    {"from the left, no overlap", "aaa", "aa", "b", "ba"},
    {"replacement with the pattern", "aaa", "a", "aa", "aaaaaa"},
    {"empty replacement", "abcabc", "b", "", "acac"},
    {"empty pattern", "abc", "", "x", "abc"},
    {"same size", "abcabc", "bc", "xy", "axyaxy"},
    {"no occurrence", "abc", "x", "longer", "abc"},
    {"grows at both ends", "xax", "x", "123", "123a123"},
};

const struct {
  const char* why;
  std::vector<std::string> texts;
  const char* result;
} alarm_rows[] = {
    {"both have two halves", {"a1|b1", "a2|b2"}, "a1 a2|b1 b2"},
    {"neither has", {"a1", "a2"}, "a1 a2|a1 a2"},
    {"each makes up for its own", {"a1|b1", "a2"}, "a1 a2|b1 a2"},
    {"an empty first half stays", {"x|", "|y"}, "x |x y"},
    {"both empty", {"", ""}, " | "},
    {"a second '|' is text", {"p|q|r", "s"}, "p s|q|r s"},
    {"three", {"a|b", "c", "e|f"}, "a c e|b c f"},
    {"four", {"a", "b", "c", "d|e"}, "a b c d|a b c e"},
    {"five", {"a|1", "b|2", "c|3", "d|4", "e|5"}, "a b c d e|1 2 3 4 5"},
    {"six", {"a|1", "b|2", "c|3", "d|4", "e|5", ""}, "a b c d e |1 2 3 4 5 "},
};

const struct {
  const char* why;
  const char* text;
  int stream, function;  // -1 where the name is refused
} message_names[] = {
    {"plain", "S1F13", 1, 13},
    {"lower case", "s6f11", 6, 11},
    {"leading zeros", "S01F002", 1, 2},
    {"largest", "S255F255", 255, 255},
    {"hexadecimal", "S0x10F0x20", 16, 32},
    {"an F in the function", "S1F0xFF", 1, 255},
    {"minus and nothing", "S-F1", 0, 1},
    {"minus zero", "S-0F1", 0, 1},
    {"0x and nothing", "S0xF1", 0, 1},
    {"empty", "", -1, -1},
    {"S alone", "S", -1, -1},
    {"no F", "S1", -1, -1},
    {"nothing behind F", "S1F", -1, -1},
    {"nothing between", "SF1", -1, -1},
    {"F first", "F1S2", -1, -1},
    {"stream too large", "S256F1", -1, -1},
    {"function too large", "S1F256", -1, -1},
    {"negative", "S-1F1", -1, -1},
    {"negative function", "S1F-1", -1, -1},
    {"blank behind", "S1F1 ", -1, -1},
    {"second F", "S1F1F", -1, -1},
    {"first F ends the stream", "S0x1FF2", -1, -1},
    {"letter", "SaF1", -1, -1},
    {"second S", "SS1F1", -1, -1},
    {"bytes ahead of S", " S1F1", -1, -1},
    {"digits ahead of S", "1S1F1", -1, -1},
    {"wraps to a small number", "S4294967297F1", 1, 1},
};

}  // namespace zeph_test

#endif  // ZEPH_TESTS_REWRITE_REWRITE_TABLE_H
