// The next occurrence of a pattern in a byte text whose length nobody knows yet.
#ifndef ZEPH_REWRITE_NEAR_OCCURRENCES_H
#define ZEPH_REWRITE_NEAR_OCCURRENCES_H

#include <cstddef>

#include "scan/find_byte.h"

namespace zeph {

// The first occurrence, or the terminator. If that is not sure, any place with none in front of it.
struct Found {
  const char* at;
  bool sure;
};

// So many bytes of a pattern are compared one by one; a longer one is for the wide search.
constexpr std::size_t short_front = 16;

// How many bytes of the pattern's front stand at `text`.
inline std::size_t common_bytes(const char* text, const char* pattern) {
  std::size_t i = 0;
  while (i < short_front && pattern[i] != '\0' && text[i] == pattern[i]) ++i;
  return i;
}

// Looks for the first occurrence or the terminator among the next bytes; at null if neither is
// there. One by one costs less than a call, and does not wait for a text that has just been
// written. The pattern is not empty, here and below.
constexpr std::size_t near_bytes = 10;
inline Found find_near(const char* text, const char* pattern) {
  const char first = pattern[0], second = pattern[1];
#pragma GCC unroll 10
  for (std::size_t i = 0; i < near_bytes; ++i) {
    if (text[i] == first && (second == '\0' || text[i + 1] == second)) {
      const std::size_t front = common_bytes(text + i, pattern);
      if (pattern[front] == '\0' || front == short_front) {
        return {text + i, pattern[front] == '\0'};
      }
    }
    if (text[i] == '\0') return {text + i, true};
  }
  return {nullptr, false};
}

// At the first place of the pattern's first byte it mostly stands. If it does not, the byte that
// tells it apart there may be a rare one.
inline Found find_by_rare_bytes(const char* text, const char* pattern) {
  const char* at = *text == *pattern ? text : find_byte_or_end(text, *pattern);
  for (int tries = 2;; --tries) {
    const std::size_t other = common_bytes(at, pattern);
    if (*at == '\0' || pattern[other] == '\0') return {at, true};
    if (tries == 0 || other == short_front) return {at, false};
    const char* const rare = find_byte_or_end(at + other, pattern[other]);
    at = *rare == '\0' ? rare : rare - other;
  }
}

[[gnu::noinline]] inline Found find_next(const char* text, const char* pattern) {
  const Found near = find_near(text, pattern);
  return near.at ? near : find_by_rare_bytes(text + near_bytes, pattern);
}

}  // namespace zeph

#endif  // ZEPH_REWRITE_NEAR_OCCURRENCES_H
