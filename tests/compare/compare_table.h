// Pairs of texts and what the comparisons say of them.
#ifndef ZEPH_TESTS_COMPARE_COMPARE_TABLE_H
#define ZEPH_TESTS_COMPARE_COMPARE_TABLE_H

#include <cfloat>
#include <climits>
#include <string>
#include <vector>

namespace zeph_test {

const struct {
  const char* why;
  const char* a;
  const char* b;
  bool exact, folded;
} whole_rows[] = {
    {"both empty", "", "", true, true},
    {"one empty", "", "a", false, false},
    {"equal", "abc", "abc", true, true},
    {"a prefix is not equal", "abc", "abcd", false, false},
    {"case", "ABC xyz", "abc XYZ", false, true},
    {"a trail byte folds like a letter", "\xC4\x41", "\xC4\x61", false, true},
};

const struct {
  const char* why;
  const char* a;
  const char* b;
  int n;
  bool exact, folded;
} prefix_rows[] = {
    {"nothing compared", "a", "b", 0, true, true},
    {"difference behind the prefix", "abcX", "abcY", 3, true, true},
    {"difference in the last byte", "abcX", "abcY", 4, false, false},
    {"case in the prefix", "AbcX", "aBCy", 3, false, true},
    {"both end inside", "abc", "abc", 9, true, true},
    {"one ends inside", "abc", "abcd", 9, false, false},
    {"one ends at n", "abc", "abcd", 3, true, true},
    {"negative is no limit", "abc", "abcd", -1, false, false},
    {"least is no limit", "abc", "ABC", INT_MIN, false, true},
};

}  // namespace zeph_test

#endif  // ZEPH_TESTS_COMPARE_COMPARE_TABLE_H
