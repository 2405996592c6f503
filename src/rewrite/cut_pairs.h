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
inline const char* behind_pairs(const char* from, char first, char second) {
  while (from[0] == first && from[1] == second) from += 2;
  return from;
}

// The first pair stands at text[at]. From there on the bytes go to the top of what is left of the
// text, and the second of a pair takes its first away from there, as long as the text is short or
// there is a pair every few bytes.
[[gnu::noinline]] inline void cut_close_pairs(char* text, std::size_t at, const char* pair) {
  constexpr std::ptrdiff_t near = 64, quiet = 24;
  constexpr std::size_t step = 8;
  const char first = pair[0], second = pair[1];
  char* top = text + at + 1;
  const char* const begin = top;
  for (const char* from = top;;) {
    --top;
    from = behind_pairs(from + 1, first, second);
    for (; *from == second && top != text && top[-1] == first; ++from) --top;
    const char* const last = from;
    std::size_t n;
    do {
      if (from - begin >= near && from - last >= quiet) return cut_far_pairs(text, top, from, pair);
      n = 0;
#pragma GCC unroll 8
      for (; n < step; ++n) {
        if (from[n] == second && top + n != text && *(top + n - 1) == first) break;
        if ((top[n] = from[n]) == '\0') return;
      }
      top += n;
      from += n;
    } while (n == step);
  }
}

// The first place at `from` or behind it where the first of the pair stands may be far away.
[[gnu::noinline]] inline void cut_pairs_behind(char* text, std::size_t from, const char* pair) {
  constexpr std::size_t near = 64;
  if (text[from] != pair[0]) {
    from = static_cast<std::size_t>(find_byte_or_end(text + from, pair[0]) - text);
  }
  for (std::size_t i = from; text[i] != '\0'; ++i) {
    if (text[i] == pair[0] && text[i + 1] == pair[1]) return cut_close_pairs(text, i, pair);
    if (i - from == near) return cut_far_pairs(text, text + i, text + i, pair);
  }
}

// Cuts a pair out of a byte text. The first bytes are gone through one by one: that needs no length
// and no call, which a short text would not repay, and does not wait for bytes that have just been
// written. The ways stand apart, so that none saves registers for another.
inline void cut_pairs_in_bytes(char* text, const char* pair) {
  constexpr std::size_t near = 16;
  const char first = pair[0], second = pair[1];
  for (std::size_t i = 0; i < near; ++i) {
    if (text[i] == second && i != 0 && text[i - 1] == first) {
      return cut_close_pairs(text, i - 1, pair);
    }
    if (text[i] == '\0') return;
  }
  cut_pairs_behind(text, near - 1, pair);
}

}  // namespace zeph

#endif  // ZEPH_REWRITE_CUT_PAIRS_H
