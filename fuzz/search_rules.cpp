// Search, slices and markers; comparison, case and blanks.
#include <algorithm>
#include <climits>

#include "compare/normalise_harness.h"
#include "rules.h"
#include "search/search_harness.h"
#include "support/fold.h"

using namespace Orbane;

namespace zeph_test {
namespace {

constexpr const char* alphabets[] = {"aA", "aA[{\xC4", "aaaaaaaaab", "", "xyXY@`"};

// Often a piece of the text, sometimes with one byte changed.
std::string needle_of(Draw& draw, const std::string& text, const char* alphabet) {
  if (text.empty() || draw.below(3) == 0) return draw.piece(5, alphabet);
  const std::size_t start = draw.below(text.size());
  std::string needle = text.substr(start, draw.below(draw.yes() ? 4 : 100));
  if (!needle.empty() && draw.yes()) needle[draw.below(needle.size())] = 'B';
  return draw.yes() ? needle : folded(needle);
}

// All four members, with a range or without.
template <typename... Range>
void expect_found(const std::string& seen, std::size_t from, const std::string& needle,
                  const char* text, Range... range) {
  if (needle.empty()) from = std::string::npos;
  const int exact = static_cast<int>(seen.find(needle, from));
  const int either = static_cast<int>(folded(seen).find(folded(needle), from));
  const GuardedText wanted(needle);
  EXPECT_EQ(Zeph_Find_Position(text, range..., wanted.data()), exact) << seen << '|' << needle;
  EXPECT_EQ(Zeph_Find_Position_L(text, range..., wanted.data()), either) << seen << '|' << needle;
  EXPECT_EQ(Zeph_Find_SubString(text, range..., wanted.data()), exact >= 0);
  EXPECT_EQ(Zeph_Find_SubString_L(text, range..., wanted.data()), either >= 0);
}

void positions(Draw& draw) {
  const char* const alphabet = alphabets[draw.below(5)];
  const std::string text = draw.text(200, alphabet);
  const std::string needle = needle_of(draw, text, alphabet);
  expect_found(text, 0, needle, GuardedText(text).data());
  const int start = draw.any_int(), end = draw.any_int();
  const std::string seen = text.substr(0, static_cast<std::size_t>(std::max(end, 0)));
  const bool inside = end <= static_cast<int>(text.size());  // no terminator is read
  expect_found(seen, static_cast<std::size_t>(std::max(start, 0)), needle,
               GuardedText(seen, inside ? End::bare : End::terminated).data(), start, end);
}

void slices(Draw& draw) {
  const std::string text = draw.text(100);
  const int start = draw.any_int(), count = draw.any_int();
  const std::size_t from = static_cast<std::size_t>(std::max(start, 0));
  const bool inside = start >= 0 && from < text.size();
  const std::string piece = inside ? text.substr(from, static_cast<std::size_t>(count)) : "";
  const bool thrown = start < 0;
  expect_slice(text, start, count, inside ? piece : "refused",
               inside   ? piece
               : thrown ? "thrown"
                        : "refused",
               thrown || from > text.size() ? "thrown" : piece);
  if (!inside || count < 0) return;
  const GuardedBuffer out(piece.size() + 1);  // exactly what is told, no terminator read
  Zeph_Ext_Str_From_Str(GuardedText(text, End::bare).data(), start, static_cast<int>(piece.size()),
                        out.data());
  EXPECT_EQ(std::string(out.data(), out.size()), piece + '\0');
}

void between_and_behind(Draw& draw) {
  const std::string text = draw.yes() ? draw.bytes(60) : draw.text(60, "(a)/\\");
  const std::size_t open = text.find('('), close = text.find(')');
  const bool apart = open != std::string::npos && close != std::string::npos && close > open + 1;
  expect_between(text, '(', ')', apart ? text.substr(open + 1, close - open - 1) : "refused");
  const std::string path = text.c_str();
  const int size = draw.between(-2, 140);
  const std::string name = path.substr(path.find_last_of("/\\") + 1);  // npos + 1 is 0
  expect_name(path, size, name.substr(0, static_cast<std::size_t>(std::max(size, 0))));
}

void markers(Draw& draw) {
  const char* const alphabet = alphabets[draw.below(5)];
  const std::string text = draw.yes() ? draw.bytes(200) : draw.text(200, alphabet);
  const std::string marker = needle_of(draw, text, alphabet);
  const std::size_t first = text.find(marker), last = text.rfind(marker);
  expect_around(text, marker, text.substr(0, first),
                last == std::string::npos ? text : text.substr(last + marker.size()));
}

void comparison(Draw& draw) {
  const std::string a = draw.text(200, alphabets[draw.below(5)]);
  std::string b = draw.yes() ? folded(a) : a;
  if (!b.empty() && draw.yes()) b[draw.below(b.size())] = 'b';
  if (draw.below(4) == 0) b += 'b';
  expect_comparison(GuardedText(a).data(), GuardedText(b).data(), a == b, folded(a) == folded(b));
  const int n = draw.yes() ? draw.between(0, 200) : draw.any_int();
  const auto bound = static_cast<std::size_t>(n);
  const std::string head_a = a.substr(0, bound), head_b = b.substr(0, bound);
  const bool exact = head_a == head_b, either = folded(head_a) == folded(head_b);
  expect_comparison(GuardedText(a).data(), GuardedText(b).data(), exact, either, n);
  const auto tail = [&](const std::string& head) {
    return head.size() == bound ? End::bare : End::terminated;  // nothing behind n bytes is read
  };
  const GuardedText short_a(head_a, tail(head_a)), short_b(head_b, tail(head_b));
  EXPECT_EQ(Zeph_Compare(short_a.data(), short_b.data(), n), exact);
  EXPECT_EQ(Zeph_Compare_L(short_a.data(), short_b.data(), n), either);
}

void case_folds(Draw& draw) {
  const std::string text = draw.yes() ? draw.bytes(200) : draw.text(200, "aZ@[`{\xC4\xE4");
  expect_fold(lowers, text, folded(text));
  expect_fold(uppers, text, folded(text, [](char byte) {
                return byte >= 'a' && byte <= 'z' ? static_cast<char>(byte - 32) : byte;
              }));
}

void trims_of_blanks(Draw& draw) {
  const std::string inside = draw.text(100, draw.yes() ? " a" : "     \ta\xA0");
  expect_trims(std::string(draw.below(9), ' ') + inside + std::string(draw.below(9), ' '));
  expect_trims(inside);
}

}  // namespace

Rules search_rules() {
  return {{"positions", positions},
          {"slices", slices},
          {"between delimiters, behind separators", between_and_behind},
          {"markers", markers},
          {"comparison", comparison},
          {"case folds", case_folds},
          {"trims of blanks", trims_of_blanks}};
}

}  // namespace zeph_test
