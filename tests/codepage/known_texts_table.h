// Texts and what the conversions make of them.
#ifndef ZEPH_TESTS_CODEPAGE_KNOWN_TEXTS_TABLE_H
#define ZEPH_TESTS_CODEPAGE_KNOWN_TEXTS_TABLE_H

#include <string>
#include <vector>

namespace zeph_test {

// clang-format off
const struct { const char *why, *utf8, *ansi, *back; } known_texts[] = {
    {"ASCII", "\x01 A~\x7F", "\x01 A~\x7F", "\x01 A~\x7F"},
    {"Chinese", "\xE6\xB8\xA9\xE5\xBA\xA6 25", "\xCE\xC2\xB6\xC8 25", "\xE6\xB8\xA9\xE5\xBA\xA6 25"},
    {"two bytes in UTF-8", "\xCE\xB1\xC3\xA9", "\xA6\xC1\xA8\xA6", "\xCE\xB1\xC3\xA9"},
    {"one byte in ANSI", "\xE2\x82\xAC\xEF\xA3\xB5", "\x80\xFF", "\xE2\x82\xAC\xEF\xA3\xB5"},
    {"look-alikes", "\xC2\xAA\xE3\x8E\xA1\xC2\xA5", "a\xA9O\xA3\xA4", "a\xE3\x8E\xA1\xEF\xBF\xA5"},
    {"not in the code page", "\xC2\xA9|\xEF\xBF\xBD|\xEA\xB0\x80", "?|?|?", "?|?|?"},
    {"beyond U+FFFF", "a\xF0\x9F\x98\x80z", "a??z", "a??z"},
    {"maximal parts", "a\xF1\x80\x80\xE1\x80\xC2" "b\x80" "c\x80\xBF" "d", "a???b?c??d", "a???b?c??d"},
    {"overlong", "\xC0\xAF\xE0\x80\xBF\xF0\x81\x82\x41", "????????A", "????????A"},
    {"halves of a surrogate pair", "\xED\xA0\xBD\xED\xB8\x80", "??????", "??????"},
    {"beyond U+10FFFF", "\xF4\x90\x80\x80\xFF", "?????", "?????"},
    {"cut short", "\xE6\xB8", "?", "?"},
    {"cut short in four bytes", "a\xF0\x9F\x98", "a?", "a?"},
};
// clang-format on

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

#endif  // ZEPH_TESTS_CODEPAGE_KNOWN_TEXTS_TABLE_H
