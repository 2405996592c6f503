// Bytes and pieces of a text are replaced or cut out in place.
//
// Some forms go on behind a change, others look again from the start of the text, so that what the
// changes themselves form is changed too. Going back costs no walk from the start: a new occurrence
// lies across the place of the last change. Nothing but the bytes around it is searched again.
#include <algorithm>
#include <cstring>
#include <string_view>

#include "rewrite/cut_pairs.h"
#include "rewrite/gap_text.h"
#include "rewrite/near_occurrences.h"
#include "rewrite/occurrences.h"
#include "scan/count_byte.h"
#include "scan/find_byte.h"
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

// Goes on behind each replacement. The occurrences are those in the rest behind the gap. Returns
// the new size. What is written never reaches the bytes that are still to be searched: the
// replacement is no longer than the pattern, or the gap is all that the text grows.
std::size_t rewrite_onward(Occurrences& occurrences, const GapText& text, View replacement) {
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
bool has_triple(View text, char byte) {
  unsigned char any = 0;  // without a jump, so that the loop is wide
  for (std::size_t i = 2; i < text.size(); ++i) {
    const auto other = (text[i - 2] ^ byte) | (text[i - 1] ^ byte) | (text[i] ^ byte);
    any = static_cast<unsigned char>(any | (static_cast<unsigned char>(other) == 0));
  }
  return any != 0;
}

// How many occurrences a text has. Those of one or two bytes are mostly counted without a look at
// each.
std::size_t count_occurrences(View text, View pattern) {
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

  Places(View text, Occurrences& occurrences) : count(0) {
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
std::size_t replace_at_places(char* text, std::size_t size, const std::size_t* places,
                              std::size_t count, View pattern, View replacement) {
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
void replace_by_longer(char* text, std::size_t size, const Places& places, View pattern,
                       View replacement) {
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
bool same_early(const char* a, const char* b, std::size_t size) {
  std::size_t i = 0;
  while (i < size && a[i] == b[i]) ++i;
  return i == size;
}

bool contains(View text, View pattern) {
  constexpr std::size_t near = 16;
  if (text.size() > near) return find_needle(text, pattern) != View::npos;
  for (; text.size() >= pattern.size(); text.remove_prefix(1)) {
    if (same_early(text.data(), pattern.data(), pattern.size())) return true;
  }
  return false;
}

// Whether no new occurrence can lie in a replacement, not even in part, so that one pass has the
// answer of looking again. "No" may be wrong for long patterns; it only chooses between two ways to
// the same bytes.
bool stands_apart(View pattern, View replacement) {
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
std::size_t part_in_front(const GapText& gap, View pattern) {
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
std::size_t rewrite_again(Occurrences& occurrences, char* text, std::size_t size,
                          View replacement) {
  GapText gap{text, 0, 0, size};
  const View pattern = occurrences.pattern();
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
std::size_t rewrite_long_again(char* text, std::size_t size, View pattern, View replacement) {
  GapText gap{text, 0, 0, size};
  for (std::size_t at; (at = find_near(gap.unsearched(), pattern)) != View::npos;) {
    gap.change(at, pattern, replacement);
  }
  gap.pass(gap.end - gap.rest);
  return gap.done;
}

// The changes that a pair may take before it counts as one without an end. Where a pair forms
// occurrences on one side of the replacement only, each change uses up a byte of the original text,
// so that there are at most as many. All others may work through 64 MiB, which bounds time and
// heap.
std::size_t most_changes(std::size_t size, View pattern, View replacement) {
  constexpr std::size_t most_bytes = std::size_t{1} << 26;
  return std::max(size, most_bytes / (pattern.size() + replacement.size()));
}

// Looks again from the start after each change, with a replacement that is shorter.
std::size_t shrink_again(Occurrences& occurrences, char* text, std::size_t size, View replacement) {
  const View pattern = occurrences.pattern();
  if (pattern.size() == 2 && replacement.empty()) return cut_pairs(occurrences, {text, 0, 0, size});
  if (stands_apart(pattern, replacement)) {
    return rewrite_onward(occurrences, {text, 0, 0, size}, replacement);
  }
  if (pattern.size() > short_pattern) return rewrite_long_again(text, size, pattern, replacement);
  return rewrite_again(occurrences, text, size, replacement);
}

// The same on the heap. A pair that is given up leaves the text as it was.
std::size_t rewrite_on_heap(char* text, std::size_t size, View pattern, View replacement) {
  HeapRewriting rewriting({text, size});
  if (!rewriting.run(pattern, replacement, most_changes(size, pattern, replacement))) return size;
  put(text, rewriting.result());
  return rewriting.result().size();
}

// The same with a replacement that is not shorter, and does not hold the pattern. Returns the new
// size.
std::size_t grow_again(Occurrences& occurrences, char* text, std::size_t size, View replacement) {
  const View pattern = occurrences.pattern();
  if (!stands_apart(pattern, replacement)) {
    return rewrite_on_heap(text, size, pattern, replacement);
  }
  const Places places({text, size}, occurrences);
  replace_by_longer(text, size, places, pattern, replacement);
  return size + places.count * (replacement.size() - pattern.size());
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
