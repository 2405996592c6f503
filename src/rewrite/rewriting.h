// Pieces of a text of known length replaced in place.
//
// Some forms go on behind a change, others look again from the start of the text, so that what the
// changes themselves form is changed too. Going back costs no walk from the start: a new occurrence
// lies across the place of the last change. Nothing but the bytes around it is searched again.
#ifndef ZEPH_REWRITE_REWRITING_H
#define ZEPH_REWRITE_REWRITING_H

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string_view>

#include "rewrite/cut_pairs.h"
#include "rewrite/gap_text.h"
#include "rewrite/occurrences.h"
#include "scan/count_byte.h"
#include "scan/find_needle.h"
#include "scan/move_bytes.h"
#include "scan/same_bytes.h"

namespace zeph {

// Goes on behind each replacement. The occurrences are those in the rest behind the gap. Returns
// the new size. What is written never reaches the bytes that are still to be searched: the
// replacement is no longer than the pattern, or the gap is all that the text grows.
inline std::size_t rewrite_onward(Occurrences& occurrences, const GapText& text,
                                  std::string_view replacement) {
  GapText gap = text;
  const std::size_t from = gap.rest, step = occurrences.pattern().size();
  for (std::size_t at; (at = occurrences.next(gap.rest - from)) != Occurrences::none;) {
    const std::size_t n = from + at - gap.rest;
    if (n != 0) gap.pass(n);
    if (replacement.size() == 1) {
      gap.bytes[gap.done++] = replacement[0];
    } else {
      put(gap.bytes + gap.done, replacement);
      gap.done += replacement.size();
    }
    gap.rest += step;
  }
  gap.pass(gap.end - gap.rest);
  return gap.done;
}

// Whether three equal bytes stand in a text side by side: of the pairs in there each one takes
// another along.
inline bool has_triple(std::string_view text, char byte) {
  unsigned char any = 0;  // without a jump, so that the loop is wide
  for (std::size_t i = 2; i < text.size(); ++i) {
    const auto other = (text[i - 2] ^ byte) | (text[i - 1] ^ byte) | (text[i] ^ byte);
    any = static_cast<unsigned char>(any | (static_cast<unsigned char>(other) == 0));
  }
  return any != 0;
}

// How many occurrences a text has. Those of one or two bytes are mostly counted without a look at
// each.
inline std::size_t count_occurrences(std::string_view text, std::string_view pattern) {
  const char first = pattern[0], last = pattern.back();
  if (pattern.size() == 1) return count_byte(text.data(), text.size(), first);
  if (pattern.size() == 2 && !text.empty() && (first != last || !has_triple(text, first))) {
    return count_pairs(text.data(), text.size() - 1, first, last);
  }
  Occurrences occurrences(text, pattern);
  std::size_t count = 0, from = 0;
  for (std::size_t at; (at = occurrences.next(from)) != Occurrences::none; ++count) {
    from = at + pattern.size();
  }
  return count;
}

// The occurrences of a pattern: how many, and where the first ones stand.
struct Places {
  static constexpr std::size_t most = 256;

  std::size_t count, first[most];

  Places(std::string_view text, Occurrences& occurrences) : count(0) {
    std::size_t from = 0;
    for (std::size_t at; count < most && (at = occurrences.next(from)) != Occurrences::none;) {
      first[count++] = at;
      from = at + occurrences.pattern().size();
    }
    if (count == most) count += count_occurrences(text.substr(from), occurrences.pattern());
  }
};

// The occurrences at `count` places become the longer replacement, in a buffer with the room, from
// the right to the left, so that each byte moves once. Returns the new size.
inline std::size_t replace_at_places(char* text, std::size_t size, const std::size_t* places,
                                     std::size_t count, std::string_view pattern,
                                     std::string_view replacement) {
  const std::size_t step = replacement.size() - pattern.size();
  std::size_t growth = count * step;
  for (std::size_t i = count, end = size; i-- > 0; end = places[i]) {
    const std::size_t behind = places[i] + pattern.size();
    move_bytes(text + behind + growth, text + behind, end - behind);
    growth -= step;
    put(text + places[i] + growth, replacement);
  }
  return size + count * step;
}

// All occurrences. For many the text is moved up by all that it grows and rewritten from there.
inline void replace_by_longer(char* text, std::size_t size, const Places& places,
                              std::string_view pattern, std::string_view replacement) {
  if (places.count <= Places::most) {
    replace_at_places(text, size, places.first, places.count, pattern, replacement);
    return;
  }
  const std::size_t growth = places.count * (replacement.size() - pattern.size());
  std::memmove(text + growth, text, size);
  Occurrences occurrences({text + growth, size}, pattern);
  rewrite_onward(occurrences, {text, 0, growth, growth + size}, replacement);
}

// Patterns and replacements are mostly a few bytes long, and differ early: that does not repay a
// wide comparison, nor a search.
inline bool same_early(const char* a, const char* b, std::size_t size) {
  std::size_t i = 0;
  while (i < size && a[i] == b[i]) ++i;
  return i == size;
}

inline bool contains(std::string_view text, std::string_view pattern) {
  constexpr std::size_t near = 16;
  if (text.size() > near) return find_needle(text, pattern) != std::string_view::npos;
  for (; text.size() >= pattern.size(); text.remove_prefix(1)) {
    if (same_early(text.data(), pattern.data(), pattern.size())) return true;
  }
  return false;
}

// Whether no new occurrence can lie in a replacement, not even in part, so that one pass has the
// answer of looking again. "No" may be wrong for long patterns; it only chooses between two ways to
// the same bytes.
inline bool stands_apart(std::string_view pattern, std::string_view replacement) {
  if (replacement.empty()) return pattern.size() == 1;
  if (pattern.size() > short_range || contains(pattern, replacement)) return false;
  const std::size_t most = std::min(pattern.size() - 1, replacement.size());
  const char* const pattern_end = pattern.data() + pattern.size();
  const char* const replacement_end = replacement.data() + replacement.size();
  for (std::size_t n = 1; n <= most; ++n) {
    if (same_early(replacement.data(), pattern_end - n, n)) return false;
    if (same_early(replacement_end - n, pattern.data(), n)) return false;
  }
  return true;
}

// How many bytes of an occurrence stand in front of the gap, if one lies across it; the leftmost
// one counts. The pattern is short.
inline std::size_t part_in_front(const GapText& gap, std::string_view pattern) {
  const char* const done = gap.bytes + gap.done;
  const char* const rest = gap.bytes + gap.rest;
  const std::size_t size = pattern.size(), left = gap.end - gap.rest;
  for (std::size_t n = std::min(size - 1, gap.done); n > 0 && size - n <= left; --n) {
    if (*(done - n) != pattern[0] || *rest != pattern[n]) continue;
    if (same_short_bytes(done - n, pattern.data(), n) &&
        same_short_bytes(rest, pattern.data() + n, size - n)) {
      return n;
    }
  }
  return 0;
}

// The most bytes of a pattern for which each change may ask for every place across the gap.
constexpr std::size_t short_pattern = 16;

// Looks again behind each change, for a short pattern and a replacement that is shorter: what a
// change has formed lies across the gap.
inline std::size_t rewrite_again(Occurrences& occurrences, char* text, std::size_t size,
                                 std::string_view replacement) {
  GapText gap{text, 0, 0, size};
  const std::string_view pattern = occurrences.pattern();
  for (std::size_t at; (at = occurrences.next(gap.rest)) != Occurrences::none;) {
    gap.pass(at - gap.rest);
    for (std::size_t front = 0;;) {
      gap.done -= front;
      gap.rest += pattern.size() - front;
      gap.rest -= replacement.size();
      put(gap.bytes + gap.rest, replacement);
      if ((front = part_in_front(gap, pattern)) == 0) break;
    }
    if (!replacement.empty()) occurrences.forget();
  }
  gap.pass(gap.end - gap.rest);
  return gap.done;
}

// The same for a pattern of any length: its last bytes are searched again.
inline std::size_t rewrite_long_again(char* text, std::size_t size, std::string_view pattern,
                                      std::string_view replacement) {
  GapText gap{text, 0, 0, size};
  for (std::size_t at; (at = find_near(gap.unsearched(), pattern)) != std::string_view::npos;) {
    gap.change(at, pattern, replacement);
  }
  gap.pass(gap.end - gap.rest);
  return gap.done;
}

// The changes that a pair may take before it counts as one without an end. Where a pair forms
// occurrences on one side of the replacement only, each change uses up a byte of the original text,
// so that there are at most as many. All others may work through 64 MiB, which bounds time and
// heap.
inline std::size_t most_changes(std::size_t size, std::string_view pattern,
                                std::string_view replacement) {
  constexpr std::size_t most_bytes = std::size_t{1} << 26;
  return std::max(size, most_bytes / (pattern.size() + replacement.size()));
}

// Looks again from the start after each change, with a replacement that is shorter.
inline std::size_t shrink_again(Occurrences& occurrences, char* text, std::size_t size,
                                std::string_view replacement) {
  const std::string_view pattern = occurrences.pattern();
  if (pattern.size() == 2 && replacement.empty()) return cut_pairs(occurrences, {text, 0, 0, size});
  if (stands_apart(pattern, replacement)) {
    return rewrite_onward(occurrences, {text, 0, 0, size}, replacement);
  }
  if (pattern.size() > short_pattern) return rewrite_long_again(text, size, pattern, replacement);
  return rewrite_again(occurrences, text, size, replacement);
}

// The same on the heap. A pair that is given up leaves the text as it was.
inline std::size_t rewrite_on_heap(char* text, std::size_t size, std::string_view pattern,
                                   std::string_view replacement) {
  HeapRewriting rewriting({text, size});
  if (!rewriting.run(pattern, replacement, most_changes(size, pattern, replacement))) return size;
  put(text, rewriting.result());
  return rewriting.result().size();
}

// The same with a replacement that is not shorter, and does not hold the pattern. Returns the new
// size.
inline std::size_t grow_again(Occurrences& occurrences, char* text, std::size_t size,
                              std::string_view replacement) {
  const std::string_view pattern = occurrences.pattern();
  if (!stands_apart(pattern, replacement)) {
    return rewrite_on_heap(text, size, pattern, replacement);
  }
  const Places places({text, size}, occurrences);
  replace_by_longer(text, size, places, pattern, replacement);
  return size + places.count * (replacement.size() - pattern.size());
}

}  // namespace zeph

#endif  // ZEPH_REWRITE_REWRITING_H
