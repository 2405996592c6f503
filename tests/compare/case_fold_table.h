// The forms of the folds, and texts in both cases.
#ifndef ZEPH_TESTS_COMPARE_CASE_FOLD_TABLE_H
#define ZEPH_TESTS_COMPARE_CASE_FOLD_TABLE_H

#include <string>

#include "zeph.h"

namespace zeph_test {

const struct FoldForms {
  void (*in_place)(char*);
  void (*copy)(const char*, char*);
  void (*string)(std::string&);
  void (*string_copy)(const std::string&, std::string&);
} lowers{Orbane::Zeph_Lower, Orbane::Zeph_Lower, Orbane::Zeph_Lower, Orbane::Zeph_Lower},
    uppers{Orbane::Zeph_Upper, Orbane::Zeph_Upper, Orbane::Zeph_Upper, Orbane::Zeph_Upper};

const struct {
  const char* why;
  std::string text, lower, upper;
} fold_rows[] = {
    {"empty", "", "", ""},
    {"neighbours of the letters stay", "Ab1-Z@[`{", "ab1-z@[`{", "AB1-Z@[`{"},
    {"a trail byte folds like a letter", "\xC4\x41", "\xC4\x61", "\xC4\x41"},
    {"behind a zero byte in a String alone", {"A\0Bc", 4}, {"a\0bc", 4}, {"A\0BC", 4}},
    {"long and above 0x80", "Chamber \xC4\xE4\xFF\x80 Pressure 0.75 mTorr",
     "chamber \xC4\xE4\xFF\x80 pressure 0.75 mtorr",
     "CHAMBER \xC4\xE4\xFF\x80 PRESSURE 0.75 MTORR"},
};

}  // namespace zeph_test

#endif  // ZEPH_TESTS_COMPARE_CASE_FOLD_TABLE_H
