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
  void (*called)(std::string&);  // as a program does, by the first steps of the header
  bool head, tail;
} trims[] = {
    {"tail", Orbane::Zeph_Del_TailSpace, Orbane::Zeph_Del_TailSpace,
     [](std::string& text) { Orbane::Zeph_Del_TailSpace(text); }, false, true},
    {"head", Orbane::Zeph_Del_HeadSpace, Orbane::Zeph_Del_HeadSpace,
     [](std::string& text) { Orbane::Zeph_Del_HeadSpace(text); }, true, false},
    {"both", Orbane::Zeph_Trimed, Orbane::Zeph_Trimed,
     [](std::string& text) { Orbane::Zeph_Trimed(text); }, true, true},
};

}  // namespace zeph_test

#endif  // ZEPH_TESTS_COMPARE_BLANK_TRIM_TABLE_H
