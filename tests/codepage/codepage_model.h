// Code page 936 as the data file tells it, and both conversions as one would explain them: slow,
// without the library's tables, the measure of what the library gives.
#ifndef ZEPH_TESTS_CODEPAGE_CODEPAGE_MODEL_H
#define ZEPH_TESTS_CODEPAGE_CODEPAGE_MODEL_H

#include <map>
#include <string>
#include <unordered_map>

namespace zeph_test {

struct CodePage {
  std::unordered_map<std::string, std::string> bytes_of;  // what a unit in UTF-8 becomes
  std::map<std::string, unsigned> unit_of;                // what one or two bytes become
};

const CodePage& code_page();

// The bytes of one unit, also of half of a surrogate pair, for which there is no valid UTF-8.
std::string utf8(unsigned unit);

// Holds both conversions of a text, by all forms, against the rule.
void expect_conversions(const std::string& text);

}  // namespace zeph_test

#endif  // ZEPH_TESTS_CODEPAGE_CODEPAGE_MODEL_H
