// Bytes and pieces of a text are replaced or cut out in place. A byte text's first pieces are
// looked for byte by byte, before its length is known.
#include <cstring>
#include <string>
#include <string_view>

#include "rewrite/cut_pairs.h"
#include "rewrite/near_occurrences.h"
#include "rewrite/rewriting.h"
#include "scan/remove_byte.h"
#include "scan/short_length.h"
#include "zeph.h"

namespace zeph {
namespace {

using View = std::string_view;

// Nothing is written in front of the first match, nor where there is none. From there on every byte
// of a longer text is stored, changed or not: that way the loop is wide.
[[gnu::noinline]] void replace_many_bytes(char* text, std::size_t size, char find,
                                          char replacement) {
  std::size_t i = View(text, size).find(find);
  for (; i < size; ++i) text[i] = text[i] == find ? replacement : text[i];
}

void replace_bytes(char* text, std::size_t size, char find, char replacement) {
  constexpr std::size_t short_text = 16;
  if (size > short_text) return replace_many_bytes(text, size, find, replacement);
#pragma GCC unroll 4
  for (std::size_t i = 0; i < size; ++i) {
    if (text[i] == find) text[i] = replacement;
  }
}

// A text without an occurrence is not written to, not even its terminator. In front of `from` there
// is none.
[[gnu::noinline]] void replace_far(char* text, std::size_t from, View pattern, View replacement) {
  const std::size_t size = from + std::strlen(text + from);
  Occurrences occurrences({text, size}, pattern);
  if (!occurrences.any_from(from)) return;
  const bool shorter = replacement.size() < pattern.size();
  const std::size_t new_size = shorter ? shrink_again(occurrences, text, size, replacement)
                                       : grow_again(occurrences, text, size, replacement);
  if (new_size != size) text[new_size] = '\0';
}

// So many occurrences are looked for one by one; for more a wide search pays.
constexpr std::size_t few_occurrences = 3;

// The first occurrence is at `at`. The replacement is shorter, and stands apart.
[[gnu::noinline]] void replace_few_by_shorter(char* text, std::size_t at, View pattern,
                                              View replacement) {
  GapText gap{text, at, at, 0};
  for (std::size_t count = 0;;) {
    put(text + gap.done, replacement);
    gap.done += replacement.size();
    gap.rest += pattern.size();
    if (++count == few_occurrences) break;
    const Found next = find_next(text + gap.rest, pattern.data());
    gap.pass(static_cast<std::size_t>(next.at - text) - gap.rest);
    if (!next.sure) break;
    if (*next.at == '\0') {
      text[gap.done] = '\0';
      return;
    }
  }
  const std::size_t size = std::strlen(text + gap.rest);
  Occurrences occurrences({text + gap.rest, size}, pattern);
  gap.end = gap.rest + size;
  text[rewrite_onward(occurrences, gap, replacement)] = '\0';
}

// The first occurrence is at `at`. The replacement is not shorter, and stands apart.
[[gnu::noinline]] void replace_few_by_longer(char* text, std::size_t at, View pattern,
                                             View replacement) {
  std::size_t places[few_occurrences], count = 0;
  for (std::size_t from = at; count < few_occurrences;) {
    places[count++] = from;
    const Found next = find_next(text + from + pattern.size(), pattern.data());
    if (!next.sure) break;
    from = static_cast<std::size_t>(next.at - text);
    if (*next.at == '\0') {
      text[replace_at_places(text, from, places, count, pattern, replacement)] = '\0';
      return;
    }
  }
  replace_far(text, at, pattern, replacement);
}

[[gnu::noinline]] void replace_from(char* text, const char* pattern, const char* replacement,
                                    Found first) {
  const View from(pattern, short_length(pattern)), to(replacement, short_length(replacement));
  if (contains(to, from)) return;
  const auto at = static_cast<std::size_t>(first.at - text);
  if (!first.sure || !stands_apart(from, to)) return replace_far(text, at, from, to);
  if (to.size() < from.size()) return replace_few_by_shorter(text, at, from, to);
  replace_few_by_longer(text, at, from, to);
}

[[gnu::noinline]] void replace_behind(char* text, const char* pattern, const char* replacement) {
  const Found first = find_by_rare_bytes(text + near_bytes, pattern);
  if (*first.at != '\0') replace_from(text, pattern, replacement, first);
}

// The pattern is not empty. The ways stand apart, so that none saves registers for another.
void replace_pattern(char* text, const char* pattern, const char* replacement) {
  const Found first = find_near(text, pattern);
  if (!first.at) return replace_behind(text, pattern, replacement);
  if (*first.at != '\0') replace_from(text, pattern, replacement, first);
}

void replace_in_bytes(char* text, const char* pattern, const char* replacement) {
  if (*pattern == '\0') return;
  const bool is_pair = pattern[1] != '\0' && pattern[2] == '\0';
  if (is_pair && *replacement == '\0') return cut_pairs_in_bytes(text, pattern);
  replace_pattern(text, pattern, replacement);
}

// Goes on behind the replacement, which is longer.
void grow_onward(std::string& text, Occurrences& occurrences, View replacement) {
  const std::size_t size = text.size();
  const Places places(text, occurrences);
  const View pattern = occurrences.pattern();
  text.resize(size + places.count * (replacement.size() - pattern.size()));
  replace_by_longer(text.data(), size, places, pattern, replacement);
}

void replace_in_string(std::string& text, View pattern, const std::string& replacement) {
  Occurrences occurrences(text, pattern);
  if (!occurrences.any()) return;
  if (replacement.size() <= pattern.size()) {
    text.resize(rewrite_onward(occurrences, {text.data(), 0, 0, text.size()}, replacement));
  } else if (&replacement == &text) {
    grow_onward(text, occurrences, std::string(replacement));
  } else {
    grow_onward(text, occurrences, replacement);
  }
}

// Apart, so that a short text needs no room on the stack.
[[gnu::noinline]] void remove_pattern(std::string& text, View pattern) {
  Occurrences occurrences(text, pattern);
  if (!occurrences.any()) return;
  text.resize(shrink_again(occurrences, text.data(), text.size(), {}));
}

// No first of a pair stands in front of the place where the walk begins.
[[gnu::noinline]] void remove_pairs(std::string& text, const char* pair) {
  const std::size_t from = text.find(pair[0]);
  if (from == std::string::npos) return;
  text.resize(from + cut_few_pairs(text.data() + from, text.size() - from, pair));
}

void remove_from_string(std::string& text, View pattern) {
  constexpr std::size_t few = 16, some = 32;
  if (pattern.size() == 2 && text.size() <= few) {
    text.resize(cut_few_pairs(text.data(), text.size(), pattern.data()));
  } else if (pattern.size() == 2 && text.size() <= some) {
    remove_pairs(text, pattern.data());
  } else if (!pattern.empty()) {
    remove_pattern(text, pattern);
  }
}

}  // namespace
}  // namespace zeph

namespace Orbane {

const char* Zeph_Replace(char* text, char find, char replacement) {
  zeph::replace_bytes(text, std::strlen(text), find, replacement);
  return text;
}

void Zeph_Replace(std::string& text, char find, char replacement) {
  zeph::replace_bytes(text.data(), text.size(), find, replacement);
}

void Zeph_Replace(std::string& text, const std::string& pattern, const std::string& replacement) {
  if (!pattern.empty()) zeph::replace_in_string(text, pattern, replacement);
}

void Zeph_Replace(char* text, const char* pattern, const char* replacement) {
  zeph::replace_in_bytes(text, pattern, replacement);
}

void Zeph_Remove(std::string& text, const std::string& pattern) {
  zeph::remove_from_string(text, pattern);
}

void Zeph_Remove(char* text, const char* pattern) {
  zeph::replace_in_bytes(text, pattern, "");
}

void Zeph_Remove(std::string& text, char byte) {
  if (byte == '\0') return;
  const std::size_t kept = zeph::remove_byte(text.data(), text.size(), byte);
  if (kept != text.size()) text.resize(kept);
}

}  // namespace Orbane
