// A pair of bytes cut out of a text, from the start again after each cut. A cut leaves one place to
// look at: where the two sides of the gap meet.
#ifndef ZEPH_REWRITE_CUT_PAIRS_H
#define ZEPH_REWRITE_CUT_PAIRS_H

#include <algorithm>
#include <cstring>
#include <string_view>

#include "rewrite/gap_text.h"
#include "rewrite/occurrences.h"
#include "scan/find_byte.h"

namespace zeph {

// How many pairs stand one inside of the other around the gap.
inline std::size_t pairs_across(const GapText& gap, char first, char second) {
  const std::size_t most = std::min(gap.done, gap.end - gap.rest);
  std::size_t n = 0;
  while (n < most && gap.bytes[gap.done - 1 - n] == first && gap.bytes[gap.rest + n] == second) ++n;
  return n;
}

// Behind the pairs that stand side by side behind the gap.
inline std::size_t behind_pairs(const GapText& gap, char first, char second) {
  std::size_t rest = gap.rest;
  while (gap.end - rest >= 2 && gap.bytes[rest] == first && gap.bytes[rest + 1] == second) {
    rest += 2;
  }
  return rest;
}

// In front of the gap there is no pair. Returns the new size.
inline std::size_t cut_pairs(Occurrences& occurrences, const GapText& text) {
  GapText gap = text;
  const char first = occurrences.pattern()[0], second = occurrences.pattern()[1];
  for (;;) {
    const std::size_t across = pairs_across(gap, first, second);
    gap.done -= across;
    gap.rest += across;
    const std::size_t at = occurrences.next(gap.rest);
    if (at == Occurrences::none) break;
    gap.pass(at - gap.rest);
    gap.rest += 2;
    gap.rest = behind_pairs(gap, first, second);
  }
  gap.pass(gap.end - gap.rest);
  return gap.done;
}

// The same for a few bytes, in one walk: the second of a pair takes its first away from the end of
// what is kept.
inline std::size_t cut_few_pairs(char* text, std::size_t size, const char* pair) {
  const char first = pair[0], second = pair[1];
  std::size_t kept = 0;
  for (std::size_t i = 0; i < size; ++i) {
    if (text[i] == second && kept != 0 && text[kept - 1] == first) {
      --kept;
    } else {
      text[kept++] = text[i];
    }
  }
  return kept;
}

// The rest of a byte text, where no pair is in front of the gap from `top` to `from`.
[[gnu::noinline]] inline void cut_far_pairs(char* text, const char* top, const char* from,
                                            const char* pair) {
  const auto done = static_cast<std::size_t>(top - text);
  const auto rest = static_cast<std::size_t>(from - text), size = rest + std::strlen(from);
  Occurrences occurrences({text, size}, {pair, 2});
  const std::size_t new_size = cut_pairs(occurrences, {text, done, rest, size});
  if (new_size != size) text[new_size] = '\0';
}

// Behind the pairs that stand side by side at `from`.
inline char* behind_pairs(char* from, char first, char second) {
  while (from[0] == first && from[1] == second) from += 2;
  return from;
}

// `from` is the first byte that is the first of the pair. The next bytes are gone through one by
// one: that needs no length, and no search, which a short text would not repay.
[[gnu::noinline]] inline void cut_near_pairs(char* text, char* from, const char* pair) {
  constexpr std::ptrdiff_t near = 64;
  const char first = pair[0], second = pair[1];
  for (std::ptrdiff_t seen = 0; from[0] != first || from[1] != second; ++from, ++seen) {
    if (*from == '\0') return;
    if (seen == near) return cut_far_pairs(text, from, from, pair);
  }
  // From the first pair on the bytes go to the top of what is left of the text, and the second of a
  // pair takes its first away from there, as long as there is one every few bytes.
  constexpr std::ptrdiff_t quiet = 24;
  char* top = from;
  from = behind_pairs(from, first, second);
  for (const char* last = from; from - last <= quiet; ++from, ++top) {
    while (*from == second && top != text && top[-1] == first) {
      for (; *from == second && top != text && top[-1] == first; ++from) --top;
      last = from = behind_pairs(from, first, second);
    }
    if ((*top = *from) == '\0') return;
  }
  cut_far_pairs(text, top, from, pair);
}

// Cuts a pair out of a byte text. The ways stand apart, so that none saves registers for another.
inline void cut_pairs_in_bytes(char* text, const char* pair) {
  if (*text == pair[0]) return cut_near_pairs(text, text, pair);
  char* const from = text + (find_byte_or_end(text, pair[0]) - text);
  if (*from != '\0') cut_near_pairs(text, from, pair);
}

}  // namespace zeph

#endif  // ZEPH_REWRITE_CUT_PAIRS_H
