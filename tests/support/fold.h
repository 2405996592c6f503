// Folds of bytes, and whole texts under them.
#ifndef ZEPH_TESTS_SUPPORT_FOLD_H
#define ZEPH_TESTS_SUPPORT_FOLD_H

#include <string>

namespace zeph_test {

inline char lower(char byte) {
  return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + 32) : byte;
}

inline std::string folded(std::string text, char (*fold)(char) = lower) {
  for (char& byte : text) byte = fold(byte);
  return text;
}

}  // namespace zeph_test

#endif  // ZEPH_TESTS_SUPPORT_FOLD_H
