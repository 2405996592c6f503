// A sealed record, and headers that are refused.
#ifndef ZEPH_TESTS_CIPHER_SEALED_RECORDS_TABLE_H
#define ZEPH_TESTS_CIPHER_SEALED_RECORDS_TABLE_H

#include <string>

namespace zeph_test {

using std::string_literals::operator""s;

const std::string hello_record =
    "\x10\0\0\0\x0B\0\0\0ZZZZZZZZ"
    "\x67\x1C\xA3\x23\x17\xD5\x98\x53\xAD\xDA\x17\xB6\x70\x83\x56\xEE"s;

const struct {
  const char* why;
  std::string header;
} unsound_headers[] = {
    {"length 17", "\x11\0\0\0\0\0\0\0"s},
    {"length 16 and something far up", "\x10\0\0\0\0\0\0\x01"s},
    {"length 0", "\0\0\0\0\0\0\0\0"s},
    {"length 0 with padding", "\0\0\0\0\x01\0\0\0"s},
    {"a whole block of padding", "\x10\0\0\0\x10\0\0\0"s},
    {"padding in the other byte order", "\x10\0\0\0\0\0\0\x0B"s},
    {"the largest numbers", "\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"s},
};

}  // namespace zeph_test

#endif  // ZEPH_TESTS_CIPHER_SEALED_RECORDS_TABLE_H
