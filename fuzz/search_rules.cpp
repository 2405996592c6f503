// Search, slices and markers; comparison, case and blanks.
#include <stdexcept>

#include "compare/blank_trim_table.h"
#include "compare/case_fold_table.h"
#include "rules.h"
#include "support/table.h"

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

// All four members, with a range or without, in the caller and in the library.
template <typename... Range>
void expect_found(const std::string& seen, std::size_t from, const std::string& needle,
                  const char* text, Range... range) {
  if (needle.empty()) from = std::string::npos;
  const int exact = static_cast<int>(seen.find(needle, from));
  const int either = static_cast<int>(folded(seen).find(folded(needle), from));
  const GuardedText wanted(needle);
  const char* const sought = wanted.data();
  using Place = int(const char*, Range..., const char*);
  using Stands = bool(const char*, Range..., const char*);
  EXPECT_EQ(Zeph_Find_Position(text, range..., sought), exact) << seen << '|' << needle;
  EXPECT_EQ(Zeph_Find_Position_L(text, range..., sought), either) << seen << '|' << needle;
  EXPECT_EQ(exported<Place>(Zeph_Find_Position)(text, range..., sought), exact);
  EXPECT_EQ(Zeph_Find_SubString(text, range..., sought), exact >= 0);
  EXPECT_EQ(Zeph_Find_SubString_L(text, range..., sought), either >= 0);
  EXPECT_EQ(exported<Stands>(Zeph_Find_SubString)(text, range..., sought), exact >= 0);
  EXPECT_EQ(exported<Stands>(Zeph_Find_SubString_L)(text, range..., sought), either >= 0);
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

// By position: of the byte text, the String, and by the String form with fewer questions.
void slices(Draw& draw) {
  const std::string text = draw.text(100);
  const int start = draw.any_int(), count = draw.any_int();
  const auto from = static_cast<std::size_t>(std::max(start, 0));
  const bool inside = start >= 0 && from < text.size(), thrown = start < 0;
  const std::string piece = inside ? text.substr(from, static_cast<std::size_t>(count)) : "";
  SCOPED_TRACE(text + ' ' + std::to_string(start) + ' ' + std::to_string(count));
  const GuardedText in(text);
  const auto cut = [&](char* out) {
    EXPECT_EQ(Zeph_Get_SubString(in.data(), start, count, out), inside);
  };
  EXPECT_EQ(left_in_room(piece.size() + 1, cut),
            inside ? piece : std::string(1, GuardedBuffer::pattern));
  cut(in.data());
  EXPECT_EQ(in.data(), inside ? piece : text) << "the text as its own output";
  using Piece = bool(const std::string&, int, int, std::string&);
  EXPECT_EQ(outcome(text, [&](auto& own) { return Zeph_Get_SubString(own, start, count, own); }),
            inside   ? piece
            : thrown ? "thrown"
                     : "refused");
  EXPECT_EQ(outcome(text,
                    [&](auto& own) {
                      return exported<Piece>(Zeph_Get_SubString)(own, start, count, own);
                    }),
            inside   ? piece
            : thrown ? "thrown"
                     : "refused");
  const auto cut_loosely = [&](std::string& own) {
    Zeph_Ext_Str_From_Str(own, start, count, own);
    return true;
  };
  EXPECT_EQ(outcome(text, cut_loosely), thrown || from > text.size() ? "thrown" : piece);
  const bool none = thrown || count < 0;
  if (!none && !inside) return;
  const int told = none ? count : static_cast<int>(piece.size());  // and no terminator is read
  const GuardedText bare(text, End::bare);
  const auto extract = [&](char* out) { Zeph_Ext_Str_From_Str(bare.data(), start, told, out); };
  EXPECT_EQ(left_in_room(none ? 1 : piece.size() + 1, extract), none ? "" : piece);
}

void between_and_behind(Draw& draw) {
  const std::string text = draw.yes() ? draw.bytes(60) : draw.text(60, "(a)/\\");
  const std::size_t open = text.find('('), close = text.find(')');
  const bool apart = open != std::string::npos && close != std::string::npos && close > open + 1;
  EXPECT_EQ(outcome(text, [](auto& own) { return Zeph_Get_SubString(own, '(', ')', own); }),
            apart ? text.substr(open + 1, close - open - 1) : "refused")
      << text;
  const std::string path = text.c_str();
  const int size = draw.between(-2, 140);
  const auto most = static_cast<std::size_t>(std::max(size, 0));
  const GuardedText from(path);
  const auto extract = [&](char* out) { Zeph_Ext_Name_From_FullPath(out, from.data(), size); };
  EXPECT_EQ(left_in_room(most + 1, extract),
            path.substr(path.find_last_of("/\\") + 1).substr(0, most))  // npos + 1 is 0
      << path;
}

// What stands on both sides of a marker, a text or a byte, by the forms that return it and those
// that write it over the text itself.
template <typename Marker>
void expect_sides(const std::string& text, const Marker& marker, const std::string& left,
                  const std::string& right) {
  EXPECT_EQ(Zeph_Left(text, marker), left) << text << ' ' << marker;
  EXPECT_EQ(Zeph_Right(text, marker), right) << text << ' ' << marker;
  std::string head = text, tail = text;
  Zeph_Left(head, marker, head);
  Zeph_Right(tail, marker, tail);
  EXPECT_EQ(head, left);
  EXPECT_EQ(tail, right);
}

void markers(Draw& draw) {
  const char* const alphabet = alphabets[draw.below(5)];
  const std::string text = draw.yes() ? draw.bytes(200) : draw.text(200, alphabet);
  const std::string marker = needle_of(draw, text, alphabet);
  const std::size_t first = text.find(marker), last = text.rfind(marker);
  const std::string left = text.substr(0, first);
  const std::string right = last == std::string::npos ? text : text.substr(last + marker.size());
  expect_sides(text, marker, left, right);
  if (marker.size() == 1) expect_sides(text, marker[0], left, right);
  std::string head = marker, tail = marker;
  Zeph_Left(text, head, head);
  Zeph_Right(text, tail, tail);
  EXPECT_EQ(head, left) << "the marker as the output";
  EXPECT_EQ(tail, right) << "the marker as the output";
}

// In the caller and in the library, of byte texts or Strings, whole or up to a number.
template <typename Text, typename... Number>
void expect_equal(Text a, Text b, bool exact, bool folded, Number... n) {
  using Compare = bool(Text, Text, Number...);
  EXPECT_EQ(Zeph_Compare(a, b, n...), exact) << a << ' ' << b;
  EXPECT_EQ(Zeph_Compare_L(a, b, n...), folded) << a << ' ' << b;
  EXPECT_EQ(exported<Compare>(Zeph_Compare)(a, b, n...), exact) << a << ' ' << b;
  EXPECT_EQ(exported<Compare>(Zeph_Compare_L)(a, b, n...), folded) << a << ' ' << b;
}

// What stands behind a zero byte in a String does not count.
template <typename... Number>
void expect_comparison(const char* a, const char* b, bool exact, bool folded, Number... n) {
  std::string strings[] = {a, b};
  expect_equal<const char*>(a, b, exact, folded, n...);
  for (std::string& next : strings) {
    expect_equal<std::string&>(strings[0], strings[1], exact, folded, n...);
    next += std::string(&next == strings ? "\0x" : "\0y", 2);
  }
  expect_equal<std::string&>(strings[0], strings[1], exact, folded, n...);
}

void comparison(Draw& draw) {
  const std::string a = draw.text(300, alphabets[draw.below(5)]);
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
  expect_equal<const char*>(short_a.data(), short_b.data(), exact, either, n);
}

// The byte text forms see what stands in front of the first zero byte.
void expect_fold(const FoldForms& fold, const std::string& text, const std::string& expected) {
  const std::string bytes = expected.c_str();
  const GuardedText in_place(text), source(text);
  fold.in_place(in_place.data());
  EXPECT_EQ(in_place.bytes(), bytes + text.substr(bytes.size()) + '\0');
  EXPECT_EQ(left_in_room(bytes.size() + 1, [&](char* out) { fold.copy(source.data(), out); }),
            bytes);
  fold.copy(source.data(), source.data());
  EXPECT_EQ(source.data(), bytes);
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
    std::string plain = text + '\0';
    char* const start = &plain[0];
    while (family.head && *start == ' ') std::memmove(start, start + 1, std::strlen(start));
    for (std::size_t i = std::strlen(start); family.tail && i > 0 && start[i - 1] == ' '; --i)
      start[i - 1] = '\0';
    std::string both = text + '\0' + text, rest = both;  // a zero byte is no blank
    if (family.head) rest.erase(0, rest.find_first_not_of(' '));
    if (family.tail) rest.erase(rest.find_last_not_of(' ') + 1);
    family.string(both);
    ASSERT_EQ(both, rest);
    const GuardedText bytes(text);
    family.bytes(bytes.data());
    ASSERT_EQ(bytes.bytes(), plain) << '\'' << text << '\'';
    for (auto* const trim : {family.string, family.called}) {
      std::string string = text;
      const std::size_t capacity = string.capacity();
      trim(string);
      ASSERT_EQ(string, start);
      ASSERT_EQ(string.capacity(), capacity);
    }
  });
}

void trims_of_blanks(Draw& draw) {
  const std::string inside = draw.text(100, draw.yes() ? " a" : "     \ta\xA0");
  const std::size_t most = draw.below(8) == 0 ? 700 : 9;
  expect_trims(std::string(draw.below(most), ' ') + inside + std::string(draw.below(most), ' '));
  expect_trims(inside);
}

}  // namespace

const Family search_family{
    "search",
    {positions, slices, between_and_behind, markers, comparison, case_folds, trims_of_blanks}};

}  // namespace zeph_test
