// Sealed records: keys, texts and their bytes, and headers that are refused.
#ifndef ZEPH_TESTS_CIPHER_SEALED_RECORDS_TABLE_H
#define ZEPH_TESTS_CIPHER_SEALED_RECORDS_TABLE_H

#include <string>

namespace zeph_test {

using std::string_literals::operator""s;

const std::string default_key = "QX-LM_SEALKEY" + std::string(19, '\0');
const std::string hello_record =
    "\x10\0\0\0\x0B\0\0\0ZZZZZZZZ"
    "\x67\x1C\xA3\x23\x17\xD5\x98\x53\xAD\xDA\x17\xB6\x70\x83\x56\xEE"s;

const struct {
  const char* why;
  std::string key, text, record;
} sealed_rows[] = {
    {"default key", default_key, "hello", hello_record},
    {"a whole block has no padding behind it", default_key, "0123456789abcdef",
     "\x10\0\0\0\0\0\0\0ZZZZZZZZ"
     "\x9A\x59\x00\xF9\x83\x32\x4A\x19\xC8\xAC\x84\xAE\x37\xA6\x2D\xBF"s},
    {"16 bytes of key, zeros among them", "\x4B\0\x91"s + std::string(13, '\0'), "recipe 17",
     "\x10\0\0\0\x07\0\0\0ZZZZZZZZ"
     "\xB2\x4B\x07\xC2\x35\xD5\x57\xDD\x1B\xDF\x99\x77\x77\xB7\x20\xAB"s},
    {"24 bytes of key, a text that ends like padding", std::string(23, '\0') + "\x01",
     "recipe 17XX",
     "\x10\0\0\0\x05\0\0\0ZZZZZZZZ"
     "\x95\x98\x7F\x94\x86\x89\x89\x5E\xC3\x48\x3A\xD1\xD6\x4E\xFA\x07"s},
    {"equal blocks show", default_key, "0123456789abcdef0123456789abcdef",
     "\x20\0\0\0\0\0\0\0ZZZZZZZZ"
     "\x9A\x59\x00\xF9\x83\x32\x4A\x19\xC8\xAC\x84\xAE\x37\xA6\x2D\xBF"
     "\x9A\x59\x00\xF9\x83\x32\x4A\x19\xC8\xAC\x84\xAE\x37\xA6\x2D\xBF"s},
    {"the empty text", default_key, "", "\0\0\0\0\0\0\0\0ZZZZZZZZ"s},
};

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
