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

}  // namespace zeph_test

#endif  // ZEPH_TESTS_COMPARE_CASE_FOLD_TABLE_H
