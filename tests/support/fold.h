// Texts as they should be: under a fold of their bytes, and as the runtime prints them.
#ifndef ZEPH_TESTS_SUPPORT_FOLD_H
#define ZEPH_TESTS_SUPPORT_FOLD_H

#include <cstdio>
#include <string>

namespace zeph_test {

inline char lower(char byte) {
  return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + 32) : byte;
}

inline std::string folded(std::string text, char (*fold)(char) = lower) {
  for (char& byte : text) byte = fold(byte);
  return text;
}

template <typename... Values>
std::string printed(const char* format, Values... values) {
  char text[4096];
  std::snprintf(text, sizeof text, format, values...);
  return text;
}

}  // namespace zeph_test

#endif  // ZEPH_TESTS_SUPPORT_FOLD_H
