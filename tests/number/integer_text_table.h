// Integers at the ends of their words, and foreign bytes.
#ifndef ZEPH_TESTS_NUMBER_INTEGER_TEXT_TABLE_H
#define ZEPH_TESTS_NUMBER_INTEGER_TEXT_TABLE_H

#include <climits>

namespace zeph_test {

const char* const integer_texts[] = {
    " 5",         "5 ",         "2147483647",  "2147483648",  "-2147483648",
    "4294967297", "0xFFFFFFFF", "0x100000000", "-0x80000000", "98765432109876543",
    "300",        "-200",       "200",         "128",         "-128",
    "\xB2",       "5\x80"};

const char* const lenient_texts[] = {
    "2147483647", "-2147483647",          "\v\f\r\n12", "0x1F",       "007",
    "1234567890", "99999999999999999999", "2147483648", "9999999999", "18446744073709551621"};

const char* const hex_texts[] = {"FFFFFFFF", "1FFFFFFFF", "12 34 56 78 9A",
                                 "-1",       "@G`g/:",    "\xC1\xE6g1"};

// Bounds that "1", "9" and "-1" meet from each side: two equal ones are none, crossed ones refuse.
const struct {
  int minimum, maximum;
} integer_bounds[] = {{1, 9}, {9, 9}, {9, 1}, {-100, -1}, {0, 100}};

}  // namespace zeph_test

#endif  // ZEPH_TESTS_NUMBER_INTEGER_TEXT_TABLE_H
