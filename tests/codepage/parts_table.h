// Parts of texts, for the conversions.
#ifndef ZEPH_TESTS_CODEPAGE_PARTS_TABLE_H
#define ZEPH_TESTS_CODEPAGE_PARTS_TABLE_H

#include <string>
#include <vector>

namespace zeph_test {

// Characters and faults of each kind, to be mixed.
// clang-format off
const std::vector<std::string> utf8_parts = {
    "x", "plain text of some length", "\xE6\xB8\xA9", "\xE5\xBA\xA6", "\xE4\xB8\xAD\xE6\x96\x87", "\xC3\xA9",
    "\xE2\x82\xAC", "\xC2\xAA", "\xF0\x9F\x98\x80", "\xE4\xB8", "\xA0"};
const std::vector<std::string> ansi_parts = {
    "x", "plain text of some length", "\xCE\xC2", "\xB6\xC8", "\xD6\xD0\xCE\xC4", "\xA6\xC1", "\x80", "\xFF",
    "\x81\x30", "\x81\x40"};
// clang-format on

}  // namespace zeph_test

#endif  // ZEPH_TESTS_CODEPAGE_PARTS_TABLE_H
