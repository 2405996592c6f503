#include "search/position.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <string_view>

#include "frame/locale_fold.h"
#include "scan/byte_mask.h"
#include "scan/find_byte.h"
#include "scan/find_needle.h"
#include "scan/short_length.h"
#include "zeph.h"

namespace zeph {
namespace {

using View = std::string_view;

// A range of indexes; the text may end before either.
struct Range {
  std::size_t begin, end;
};

int to_position(std::size_t found) {
  return found > INT_MAX ? not_found : static_cast<int>(found);
}

// The end of a text is looked for a piece at a time, and the piece is searched while it is near: a
// match far ahead of the end costs no walk to the end, and a long text is fetched once.
constexpr std::size_t first_piece = 64, largest_piece = 16384, growth = 64;

// `find` looks for the pattern, which is `size` bytes long, in a text of known size.
template <typename Find>
std::size_t find_in_pieces(const char* text, Range range, std::size_t size, Find find) {
  // A match may lie across two pieces, so that size - 1 bytes are searched again. Pieces of four
  // times that size keep the whole search linear.
  std::size_t from = range.begin, known = 0, piece = std::max(first_piece, 4 * size);
  for (std::size_t wanted = std::min(from + piece, range.end);;) {
    const std::size_t here = strnlen(text + known, wanted);
    known += here;
    if (known < from) return View::npos;
    const std::size_t found = find(View(text + from, known - from));
    if (found != View::npos) return from + found;
    if (here < wanted || known == range.end) return View::npos;
    from = std::max(from, known - std::min(known, size - 1));
    if (piece < largest_piece) piece *= growth;
    wanted = std::min(piece, range.end - known);
  }
}

// Among so few places the runtime finds one byte sooner than a search for any pattern does.
constexpr std::size_t few_places = 16;

[[gnu::noinline]] std::size_t find_byte(const char* text, Range range, char byte) {
  return find_in_pieces(text, range, 1, [byte](View piece) {
    const void* const at = std::memchr(piece.data(), byte, piece.size());
    return at ? static_cast<std::size_t>(static_cast<const char*>(at) - piece.data()) : View::npos;
  });
}

// The pattern is not empty, here and below.
[[gnu::noinline]] std::size_t find_exact(const char* text, Range range, View pattern) {
  return find_in_pieces(text, range, pattern.size(),
                        [pattern](View piece) { return find_needle(piece, pattern); });
}

// The table has a function of its own: room for it, and the guard behind it, cost each call.
[[gnu::noinline]] int find_by_table(const char* text, Range range, View pattern) {
  const FoldTable table = locale_fold_table(LetterCase::lower);
  return to_position(find_in_pieces(text, range, pattern.size(), [pattern, &table](View piece) {
    return find_needle_by_table(piece, pattern, table.bytes);
  }));
}

[[gnu::noinline]] int find_folded(const char* text, Range range, View pattern) {
  if (!locale_folds_ascii(LetterCase::lower)) return find_by_table(text, range, pattern);
  return to_position(find_in_pieces(text, range, pattern.size(), [pattern](View piece) {
    return find_needle_ignoring_case(piece, pattern);
  }));
}

bool stands_at(const char* text, View pattern, const LocaleFold& fold) {
  for (const char byte : pattern) {
    if (*text == '\0' || fold(*text) != fold(byte)) return false;
    ++text;
  }
  return true;
}

// A range is near if it starts near the start of the text and the pattern is short. What stands at
// one of its first two places is found before the questions for the text's length and for the
// locale as a whole would be answered. The range is no shorter than the pattern, and a byte of the
// text stands at its start.
[[gnu::noinline]] int find_folded_near(const char* text, Range range, View pattern) {
  const LocaleFold fold(LetterCase::lower);
  const char* const from = text + range.begin;
  if (stands_at(from, pattern, fold)) return static_cast<int>(range.begin);
  const bool fits = range.end - range.begin > pattern.size();
  if (fits && stands_at(from + 1, pattern, fold)) return static_cast<int>(range.begin + 1);
  return find_folded(text, range, pattern);
}

// Whether the first two bytes speak for a pattern. This is a guess, which no result depends on.
bool may_stand_at(const char* text, View pattern) {
  const auto alike = [](char a, char b) { return ((a ^ b) & ~0x20) == 0; };
  if (*text == '\0' || !alike(*text, pattern[0])) return false;
  return pattern.size() == 1 || alike(text[1], pattern[1]);
}

int find_folded_in_range(const char* text, Range range, View pattern) {
  constexpr std::size_t near = 8;
  if (range.begin > near || pattern.size() > near) return find_folded(text, range, pattern);
  for (std::size_t i = 0; i < range.begin; ++i) {
    if (text[i] == '\0') return not_found;
  }
  const char* const from = text + range.begin;
  const bool second = *from != '\0' && range.end - range.begin > pattern.size();
  const bool likely = may_stand_at(from, pattern) || (second && may_stand_at(from + 1, pattern));
  return likely ? find_folded_near(text, range, pattern) : find_folded(text, range, pattern);
}

[[gnu::noinline]] bool starts_with(const char* text, const char* pattern) {
  return std::strncmp(text, pattern, std::strlen(pattern)) == 0;
}

// Whether a pattern stands at a place where its first byte does. Most others differ early: the
// compiler makes no loop of so few bytes.
inline bool stands_behind_first(const char* text, const char* pattern) {
  constexpr int near = 8;
  for (int i = 1; i <= near; ++i) {
    if (pattern[i] == '\0') return true;
    if (text[i] != pattern[i]) return false;
  }
  return starts_with(text + near + 1, pattern + near + 1);
}

// How many bytes are the same in front of the first that differs. There is one: the pattern does
// not stand there.
std::size_t common_bytes(const char* text, const char* pattern) {
  std::size_t i = 0;
  while (text[i] == pattern[i]) ++i;
  return i;
}

// The places behind those that the look below has seen. The byte that told the first place apart
// may be a rare one: the runtime's walk to it decides. The filter does what is left.
[[gnu::noinline]] int find_beyond(const char* text, const char* from, View pattern) {
  const std::size_t other = common_bytes(from, pattern.data());
  from += 1 + mask_bytes - std::min(mask_bytes, pattern.size() - 1);
  if (other <= mask_bytes) {
    from = find_byte_or_end(from + other, pattern[other]);
    if (*from == '\0') return not_found;
    from -= other;
    if (*from == pattern[0] && stands_behind_first(from, pattern.data())) {
      return to_position(static_cast<std::size_t>(from - text));
    }
    ++from;
  }
  const std::size_t far = find_exact(from, {0, View::npos}, pattern);
  if (far == View::npos) return not_found;
  return to_position(static_cast<std::size_t>(from - text) + far);
}

// The places from `from` + 1 on; at `from` the pattern does not stand. One look at what is near
// tells, or the text goes on. The ways of a search through a whole text stand apart, so that none
// saves registers for another one.
[[gnu::noinline]] int find_behind(const char* text, const char* from, const char* pattern) {
  const View sought(pattern, short_length(pattern));
  const char* const near = from + 1;
  const std::size_t known = strnlen(near, mask_bytes);
  const std::size_t found = find_needle(View(near, known), sought);
  if (found != View::npos) return to_position(static_cast<std::size_t>(near - text) + found);
  return known < mask_bytes ? not_found : find_beyond(text, from, sought);
}

// The first byte of most patterns is rare, and the runtime's walk to it needs no length: the first
// place where it stands decides most searches. If it does not, but lies some way from the start,
// two more walks come to the end of a short text. That is one function: to hand over to another one
// costs nearly as much as a walk.
[[gnu::noinline]] int find_exact(const char* text, const char* pattern) {
  constexpr std::ptrdiff_t near = 8;
  const char* from = find_byte_or_end(text, *pattern);
  for (int places = 1;; ++places) {
    if (*from == '\0') return not_found;
    if (stands_behind_first(from, pattern)) {
      return to_position(static_cast<std::size_t>(from - text));
    }
    if (places == 3 || from - text < near) return find_behind(text, from, pattern);
    __asm__("" : "+r"(pattern));  // else GCC keeps its bytes in registers that all calls save
    from = find_byte_or_end(from + 1, *pattern);
  }
}

[[gnu::noinline]] int find_byte(const char* text, char byte) {
  const char* const found = std::strchr(text, byte);
  return found ? to_position(static_cast<std::size_t>(found - text)) : not_found;
}

}  // namespace

int find_position(const char* text, const char* pattern, CaseRule rule) {
  if (pattern[0] == '\0') return not_found;
  if (rule == CaseRule::ignored) return find_folded(text, {0, View::npos}, pattern);
  return pattern[1] == '\0' ? find_byte(text, pattern[0]) : find_exact(text, pattern);
}

int find_position(const char* text, SearchSpan span, const char* pattern, CaseRule rule) {
  const int start = std::max(span.start, 0);
  if (span.end <= start || pattern[0] == '\0') return not_found;
  const Range range{static_cast<std::size_t>(start), static_cast<std::size_t>(span.end)};
  const View sought(pattern, short_length(pattern));
  if (range.end - range.begin < sought.size()) return not_found;
  if (rule == CaseRule::ignored) return find_folded_in_range(text, range, sought);
  const bool simple = sought.size() == 1 && range.end - range.begin <= few_places;
  return to_position(simple ? find_byte(text, range, pattern[0]) : find_exact(text, range, sought));
}

}  // namespace zeph

namespace Orbane {

using zeph::CaseRule;

int Zeph_Find_Position(const char* text, const char* pattern) {
  return zeph::find_position(text, pattern, CaseRule::exact);
}

int Zeph_Find_Position(const char* text, int start, int end, const char* pattern) {
  return zeph::find_position(text, {start, end}, pattern, CaseRule::exact);
}

int Zeph_Find_Position_L(const char* text, const char* pattern) {
  return zeph::find_position(text, pattern, CaseRule::ignored);
}

int Zeph_Find_Position_L(const char* text, int start, int end, const char* pattern) {
  return zeph::find_position(text, {start, end}, pattern, CaseRule::ignored);
}

bool Zeph_Find_SubString(const char* text, const char* pattern) {
  return zeph::find_position(text, pattern, CaseRule::exact) >= 0;
}

bool Zeph_Find_SubString(const char* text, int start, int end, const char* pattern) {
  return zeph::find_position(text, {start, end}, pattern, CaseRule::exact) >= 0;
}

bool Zeph_Find_SubString_L(const char* text, const char* pattern) {
  return zeph::find_position(text, pattern, CaseRule::ignored) >= 0;
}

bool Zeph_Find_SubString_L(const char* text, int start, int end, const char* pattern) {
  return zeph::find_position(text, {start, end}, pattern, CaseRule::ignored) >= 0;
}

}  // namespace Orbane
