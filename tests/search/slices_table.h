// Slices of texts, and what stands around a marker.
#ifndef ZEPH_TESTS_SEARCH_SLICES_TABLE_H
#define ZEPH_TESTS_SEARCH_SLICES_TABLE_H

#include <cfloat>
#include <climits>
#include <string>
#include <vector>

namespace zeph_test {

const struct {
  const char* why;
  const char* text;
  int start, count;
  const char* bytes;   // Zeph_Get_SubString on the byte text
  const char* string;  // and on the String
  const char* loose;   // Zeph_Ext_Str_From_Str on the String
} slices[] = {
    {"inside", "hello", 1, 3, "ell", "ell", "ell"},
    {"cut at the end", "hello", 1, 99, "ello", "ello", "ello"},
    {"negative count", "hello", 1, INT_MIN, "ello", "ello", "ello"},
    {"count 0", "hello", 1, 0, "", "", ""},
    {"last byte", "hello", 4, 1, "o", "o", "o"},
    {"start at the end", "hello", 5, 1, "refused", "refused", ""},
    {"start behind the end", "hello", 6, 1, "refused", "refused", "thrown"},
    {"empty text", "", 0, 1, "refused", "refused", ""},
    {"negative start", "hello", -1, 1, "refused", "thrown", "thrown"},
};

const struct {
  const char* why;
  const char* text;
  char open, close;
  const char* between;
} delimited[] = {
    {"plain", "a(b)c", '(', ')', "b"},
    {"neighbours", "()", '(', ')', "refused"},
    {"close in front of open", ")a(b)", '(', ')', "refused"},
    {"first of each", "(a(b))", '(', ')', "a(b"},
    {"no close", "(a", '(', ')', "refused"},
    {"no open", "a)", '(', ')', "refused"},
    {"one byte for both", "|a|", '|', '|', "refused"},
};

const struct {
  const char* why;
  const char* path;
  int size;
  const char* name;
} paths[] = {
    {"mixed separators", "c:\\dir/file.txt", 8, "file.txt"},
    {"backslash last", "c:/dir\\f", 8, "f"},
    {"no separator", "file", 8, "file"},
    {"nothing behind", "dir/", 8, ""},
    {"empty", "", 8, ""},
    {"cut", "dir/file.txt", 4, "file"},
    {"size 0", "dir/file.txt", 0, ""},
    {"negative size", "dir/file.txt", INT_MIN, ""},
    {"second half of a character",
     "\xC4\x5C"
     "b",
     8, "b"},
};

const struct {
  const char* why;
  std::string text, marker, left, right;
} markers[] = {
    {"first and last differ", "a=b=c", "=", "a", "c"},
    {"longer marker", "key::value", "::", "key", "value"},
    {"missing", "abc", "x", "abc", "abc"},
    {"longer than the text", "ab", "abc", "ab", "ab"},
    {"at the start", "=abc", "=", "", "abc"},
    {"at the end", "abc=", "=", "abc", ""},
    {"empty text", "", "=", "", ""},
    {"empty marker", "abc", "", "", ""},
    {"overlapping", "aaab", "aa", "", "b"},
    {"zero bytes are ordinary", std::string("a\0b\0c", 5), std::string("\0", 1), "a", "c"},
    {"the terminator is no byte", "abc", std::string("\0", 1), "abc", "abc"},
};

}  // namespace zeph_test

#endif  // ZEPH_TESTS_SEARCH_SLICES_TABLE_H
