// The functions that take blanks off, and the ends they take them from.
#ifndef ZEPH_TESTS_COMPARE_BLANK_TRIM_TABLE_H
#define ZEPH_TESTS_COMPARE_BLANK_TRIM_TABLE_H

#include <string>
#include "zeph.h"

namespace zeph_test {

const struct {
  const char* why;
  void (*bytes)(char*);
  void (*string)(std::string&);
  bool head, tail;
} trims[] = {
    {"tail", Orbane::Zeph_Del_TailSpace, Orbane::Zeph_Del_TailSpace, false, true},
    {"head", Orbane::Zeph_Del_HeadSpace, Orbane::Zeph_Del_HeadSpace, true, false},
    {"both", Orbane::Zeph_Trimed, Orbane::Zeph_Trimed, true, true},
};

}  // namespace zeph_test

#endif  // ZEPH_TESTS_COMPARE_BLANK_TRIM_TABLE_H
