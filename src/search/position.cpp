#include "search/position.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <string_view>

#include "frame/locale_fold.h"
#include "scan/byte_mask.h"
#include "scan/find_byte.h"
#include "scan/find_needle.h"
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
  std::size_t from = range.begin, known = from, piece = std::max(first_piece, 4 * size);
  for (;;) {
    const std::size_t wanted = std::min(piece, range.end - known);
    const std::size_t here = strnlen(text + known, wanted);
    known += here;
    const std::size_t found = find(View(text + from, known - from));
    if (found != View::npos) return from + found;
    if (here < wanted || known == range.end) return View::npos;
    from = std::max(from, known - std::min(known, size - 1));
    if (piece < largest_piece) piece *= growth;
  }
}

// The range begins inside the text or at its terminator. The pattern is not empty.
std::size_t find_in_range(const char* text, Range range, View pattern, CaseRule rule) {
  const auto find_by = [&](auto find) { return find_in_pieces(text, range, pattern.size(), find); };
  if (rule == CaseRule::exact) {
    return find_by([pattern](View piece) { return find_needle(piece, pattern); });
  }
  if (locale_folds_ascii(LetterCase::lower)) {
    return find_by([pattern](View piece) { return find_needle_ignoring_case(piece, pattern); });
  }
  const FoldTable table = locale_fold_table(LetterCase::lower);
  return find_by(
      [pattern, &table](View piece) { return find_needle_by_table(piece, pattern, table.bytes); });
}

// Most places that do not hold the pattern differ from it early.
bool starts_with(const char* text, const char* pattern) {
  for (int i = 0; i < 16; ++i, ++text, ++pattern) {
    if (*pattern == '\0') return true;
    if (*text != *pattern) return false;
  }
  return std::strncmp(text, pattern, std::strlen(pattern)) == 0;
}

// The exact search through a whole text. The first byte of most patterns is rare, and the runtime's
// walk to it needs no length: the first place where it stands decides most searches. Else the text
// goes on for a bit or it is a long one: one look at what is near, a few more walks, the filter.
std::size_t find_exact(const char* text, const char* pattern_text) {
  const char* from = find_byte_or_end(text, *pattern_text);
  if (*from == '\0') return View::npos;
  if (starts_with(from, pattern_text)) return static_cast<std::size_t>(from - text);
  ++from;
  const View pattern(pattern_text);
  const auto passed = static_cast<std::size_t>(from - text);
  const std::size_t known = strnlen(from, mask_bytes);
  const std::size_t found = find_needle(View(from, known), pattern);
  if (found != View::npos) return passed + found;
  if (known < mask_bytes) return View::npos;
  from += known - std::min(known, pattern.size() - 1);
  for (int candidates = 0; candidates < 4; ++candidates) {
    from = find_byte_or_end(from, pattern[0]);
    if (*from == '\0') return View::npos;
    if (starts_with(from, pattern_text)) return static_cast<std::size_t>(from - text);
    ++from;
  }
  const Range rest{static_cast<std::size_t>(from - text), View::npos};
  return find_in_range(text, rest, pattern, CaseRule::exact);
}

}  // namespace

int find_position(const char* text, const char* pattern, CaseRule rule) {
  if (pattern[0] == '\0') return not_found;
  if (rule == CaseRule::ignored) {
    return to_position(find_in_range(text, {0, View::npos}, pattern, rule));
  }
  if (pattern[1] != '\0') return to_position(find_exact(text, pattern));
  const char* const found = std::strchr(text, pattern[0]);
  return found ? to_position(static_cast<std::size_t>(found - text)) : not_found;
}

int find_position(const char* text, SearchSpan span, const char* pattern, CaseRule rule) {
  const int start = std::max(span.start, 0);
  if (span.end <= start || pattern[0] == '\0') return not_found;
  const Range range{static_cast<std::size_t>(start), static_cast<std::size_t>(span.end)};
  if (strnlen(text, range.begin) < range.begin) return not_found;
  return to_position(find_in_range(text, range, pattern, rule));
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
