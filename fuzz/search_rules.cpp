// Search, slices and markers; comparison, case and blanks.
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include <stdexcept>
#include <string>

#include "compare/blank_trim_table.h"
#include "compare/case_fold_table.h"
#include "rules.h"
#include "support/fold.h"
#include "support/guarded_buffer.h"
#include "support/table.h"
#include "zeph.h"

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

// The text as its own output of `call`. "refused" stands for a false result, "thrown" for the
// exception; both leave it as it was.
template <typename Call>
std::string outcome(const std::string& text, Call call) {
  std::string out = text;
  try {
    if (call(out)) return out;
  } catch (const std::out_of_range& e) {
    EXPECT_STREQ(e.what(), "invalid string position");
    EXPECT_EQ(out, text);
    return "thrown";
  }
  EXPECT_EQ(out, text) << "untouched";
  return "refused";
}

// A slice by position: of the byte text, the String, and by the String form with fewer questions.
void expect_slice(const std::string& text, int start, int count, const std::string& bytes,
                  const std::string& string, const std::string& loose) {
  SCOPED_TRACE(text + ' ' + std::to_string(start) + ' ' + std::to_string(count));
  const bool refused = bytes == "refused";
  const GuardedText in(text);
  const GuardedBuffer out(refused ? 1 : bytes.size() + 1);
  EXPECT_EQ(Zeph_Get_SubString(in.data(), start, count, out.data()), !refused);
  if (refused) {
    EXPECT_TRUE(out.untouched());
  } else {
    EXPECT_EQ(std::string(out.data(), out.size()), bytes + '\0');
    EXPECT_TRUE(Zeph_Get_SubString(in.data(), start, count, in.data()));
    EXPECT_EQ(in.data(), bytes) << "the text as its own output";
  }
  EXPECT_EQ(outcome(text, [&](std::string& s) { return Zeph_Get_SubString(s, start, count, s); }),
            string);
  const auto cut_loosely = [&](std::string& s) {
    Zeph_Ext_Str_From_Str(s, start, count, s);
    return true;
  };
  EXPECT_EQ(outcome(text, cut_loosely), loose);
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
  if (start < 0 || count < 0) {
    const GuardedBuffer none(1);
    Zeph_Ext_Str_From_Str(GuardedText(text).data(), start, count, none.data());
    EXPECT_EQ(none.data()[0], '\0');
  }
  if (!inside || count < 0) return;
  const GuardedBuffer out(piece.size() + 1);  // exactly what is told, no terminator read
  Zeph_Ext_Str_From_Str(GuardedText(text, End::bare).data(), start, static_cast<int>(piece.size()),
                        out.data());
  EXPECT_EQ(std::string(out.data(), out.size()), piece + '\0');
}

void expect_between(const std::string& text, char open, char close, const std::string& between) {
  EXPECT_EQ(outcome(text, [&](std::string& s) { return Zeph_Get_SubString(s, open, close, s); }),
            between)
      << text;
}

void expect_name(const std::string& path, int size, const std::string& name) {
  const GuardedBuffer out(size > 0 ? static_cast<std::size_t>(size) + 1 : 1);
  Zeph_Ext_Name_From_FullPath(out.data(), GuardedText(path).data(), size);
  EXPECT_EQ(out.data(), name) << path;
  EXPECT_TRUE(out.untouched(name.size() + 1));
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

// What stands on both sides of a marker, a text or a byte, by the forms that return it and those
// that write it over the text itself.
template <typename Marker>
void expect_sides(const std::string& text, const Marker& marker, const std::string& left,
                  const std::string& right) {
  EXPECT_EQ(Zeph_Left(text, marker), left) << text << ' ' << marker;
  EXPECT_EQ(Zeph_Right(text, marker), right) << text << ' ' << marker;
  std::string own = text;
  Zeph_Left(own, marker, own);
  EXPECT_EQ(own, left);
  own = text;
  Zeph_Right(own, marker, own);
  EXPECT_EQ(own, right);
}

void expect_around(const std::string& text, const std::string& marker, const std::string& left,
                   const std::string& right) {
  expect_sides(text, marker, left, right);
  if (marker.size() == 1) expect_sides(text, marker[0], left, right);
  std::string own = marker;
  Zeph_Left(text, own, own);
  EXPECT_EQ(own, left) << "the marker as the output";
  own = marker;
  Zeph_Right(text, own, own);
  EXPECT_EQ(own, right) << "the marker as the output";
}

void markers(Draw& draw) {
  const char* const alphabet = alphabets[draw.below(5)];
  const std::string text = draw.yes() ? draw.bytes(200) : draw.text(200, alphabet);
  const std::string marker = needle_of(draw, text, alphabet);
  const std::size_t first = text.find(marker), last = text.rfind(marker);
  expect_around(text, marker, text.substr(0, first),
                last == std::string::npos ? text : text.substr(last + marker.size()));
}

// All forms, whole or up to a number.
template <typename... Number>
void expect_comparison(const char* a, const char* b, bool exact, bool folded, Number... n) {
  std::string string_a = a, string_b = b;
  EXPECT_EQ(Zeph_Compare(a, b, n...), exact) << a << ' ' << b;
  EXPECT_EQ(Zeph_Compare(string_a, string_b, n...), exact);
  EXPECT_EQ(Zeph_Compare_L(a, b, n...), folded) << a << ' ' << b;
  EXPECT_EQ(Zeph_Compare_L(string_a, string_b, n...), folded);
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

// The byte text forms see what stands in front of the first zero byte.
void expect_fold(const FoldForms& fold, const std::string& text, const std::string& expected) {
  const std::string bytes = expected.c_str();
  const GuardedText in_place(text), source(text);
  const GuardedBuffer target(bytes.size() + 1);
  fold.in_place(in_place.data());
  EXPECT_EQ(std::string(in_place.data(), text.size()), bytes + text.substr(bytes.size()));
  fold.copy(source.data(), target.data());
  EXPECT_EQ(std::string(target.data(), target.size()), bytes + '\0');
  fold.copy(source.data(), source.data());
  EXPECT_STREQ(source.data(), bytes.c_str());
  std::string string = text, copy = "former content", same = text;
  fold.string(string);
  fold.string_copy(text, copy);
  fold.string_copy(same, same);
  for (const std::string& result : {string, copy, same}) EXPECT_EQ(result, expected);
}

void case_folds(Draw& draw) {
  const std::string text = draw.yes() ? draw.bytes(200) : draw.text(200, "aZ@[`{\xC4\xE4");
  expect_fold(lowers, text, folded(text));
  expect_fold(uppers, text, folded(text, [](char byte) {
                return byte >= 'a' && byte <= 'z' ? static_cast<char>(byte - 32) : byte;
              }));
}

// The blanks taken out one by one, with what that leaves behind the text. Every byte up to the old
// terminator is the same, and a String holds the same text in the same capacity.
void expect_trims(const std::string& text) {
  each_row(trims, [&](const auto& family) {
    std::string plain = text + '\0', string = text;
    char* const start = &plain[0];
    while (family.head && *start == ' ') std::memmove(start, start + 1, std::strlen(start));
    for (std::size_t i = std::strlen(start); family.tail && i > 0 && start[i - 1] == ' '; --i)
      start[i - 1] = '\0';
    const std::size_t capacity = string.capacity();
    const GuardedText bytes(text);
    family.bytes(bytes.data());
    ASSERT_EQ(std::string(bytes.data(), bytes.size()), plain) << '\'' << text << '\'';
    family.string(string);
    ASSERT_EQ(string, start);
    ASSERT_EQ(string.capacity(), capacity);
  });
}

void trims_of_blanks(Draw& draw) {
  const std::string inside = draw.text(100, draw.yes() ? " a" : "     \ta\xA0");
  const std::size_t most = draw.below(8) == 0 ? 700 : 9;
  expect_trims(std::string(draw.below(most), ' ') + inside + std::string(draw.below(most), ' '));
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
