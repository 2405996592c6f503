// Codes and their messages in bytes of code page 936, written down by hand: "系统信息",
// "系统错误信息" and "系统错误码".
#ifndef ZEPH_TESTS_SYSERROR_SYSTEM_MESSAGES_TABLE_H
#define ZEPH_TESTS_SYSERROR_SYSTEM_MESSAGES_TABLE_H

#include <cstdint>

namespace zeph_test {

const struct {
  const char* why;
  std::uint32_t code;
  const char* text;
} known_messages[] = {
    {"no error", 0,
     "\317\265\315\263\320\305\317\242:[0]-\262\331\327\367\263\311\271\246\315\352\263\311"
     "\241\243"},
    {"access denied", 5,
     "\317\265\315\263\264\355\316\363\320\305\317\242:[5]-\276\334\276\370\267\303\316\312"
     "\241\243"},
    {"between rows", 34, "\317\265\315\263\264\355\316\363\302\353:[34]"},
    {"behind the last row", 1399, "\317\265\315\263\264\355\316\363\302\353:[1399]"},
    {"largest positive", 2147483647, "\317\265\315\263\264\355\316\363\302\353:[2147483647]"},
    {"lowest negative", 2147483648, "\317\265\315\263\264\355\316\363\302\353:[-2147483648]"},
    {"minus one", 4294967295, "\317\265\315\263\264\355\316\363\302\353:[-1]"},
};

}  // namespace zeph_test

#endif  // ZEPH_TESTS_SYSERROR_SYSTEM_MESSAGES_TABLE_H
