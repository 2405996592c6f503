// Replace, remove and enclosing marks.
#include "rules.h"

using namespace Orbane;

namespace zeph_test {
namespace {

std::string rewritten_text(Draw& draw) {
  const char* const alphabets[] = {"ab", "ab", "abc", "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaab"};
  return draw.text(200, alphabets[draw.below(4)]);
}

// A pass over the bytes, to the first zero byte in a byte text and to the end in a String.
void single_bytes(Draw& draw) {
  const std::string text = draw.text(200, draw.yes() ? "ab" : "");
  const char find = draw.yes() ? 'a' : static_cast<char>(draw.below(5) == 0 ? 0 : draw.byte());
  const char replacement =
      draw.yes() ? 'b' : static_cast<char>(draw.below(5) == 0 ? 0 : draw.byte());
  const std::string both = text + '\0' + text;
  std::string expected = both, string = both, rest = both, cut = both;
  std::replace(expected.begin(), expected.end(), find, replacement);
  if (find != '\0') rest.erase(std::remove(rest.begin(), rest.end(), find), rest.end());
  const GuardedText bytes(text);
  EXPECT_EQ(Zeph_Replace(bytes.data(), find, replacement), bytes.data());
  EXPECT_EQ(bytes.bytes(), expected.substr(0, text.size()) + '\0');
  Zeph_Replace(string, find, replacement);
  EXPECT_EQ(string, expected);
  Zeph_Remove(cut, find);
  EXPECT_EQ(cut, rest);
}

// The search goes on behind the replacement.
std::string onward(std::string text, const std::string& pattern, const std::string& replacement) {
  for (std::size_t at = 0; !pattern.empty(); at += replacement.size()) {
    at = text.find(pattern, at);
    if (at == std::string::npos) break;
    text.replace(at, pattern.size(), replacement);
  }
  return text;
}

// A String, which may be the pattern or the replacement too.
void pieces_onward(Draw& draw) {
  const std::string_view letters("ab\0\xC4", draw.yes() ? 2 : 4);
  std::string text = draw.yes() ? draw.text(200, letters) : rewritten_text(draw);
  if (!text.empty() && draw.below(8) == 0) {  // hundreds of occurrences
    while (text.size() < 1500) text += text;
  }
  const std::string pattern = draw.piece(4, letters), replacement = draw.piece(9, letters);
  std::string string = text, from = pattern, to = replacement;
  Zeph_Replace(string, pattern, replacement);
  EXPECT_EQ(string, onward(text, pattern, replacement)) << text << ": " << pattern;
  Zeph_Replace(from, from, replacement);
  EXPECT_EQ(from, onward(pattern, pattern, replacement));
  Zeph_Replace(to, pattern, to);
  EXPECT_EQ(to, onward(replacement, pattern, replacement));
}

// One change at a time, from the start again after each, and the longest text on the way; false if
// it takes more than 300.
bool rewrite(std::string& text, const std::string& pattern, const std::string& replacement,
             std::size_t& longest) {
  longest = text.size();
  for (std::size_t at, left = 300; (at = text.find(pattern)) != std::string::npos;) {
    if (pattern.empty()) break;
    if (left-- == 0) return false;
    text.replace(at, pattern.size(), replacement);
    longest = std::max(longest, text.size());
  }
  return true;
}

// A byte text, in a room of exactly what the rule needs.
void pieces_again(Draw& draw) {
  const std::string text = rewritten_text(draw);
  std::string pattern = draw.piece(4, "ab"), replacement = draw.piece(9, "abc"), expected = text;
  if (draw.below(8) == 0) {
    pattern = std::string(60 + draw.below(20), 'a') + "b";
    if (draw.yes()) replacement = "b" + std::string(draw.below(120), 'c');
  }
  std::size_t longest = text.size();
  const bool endless = !pattern.empty() && replacement.find(pattern) != std::string::npos;
  if (!endless && !rewrite(expected, pattern, replacement, longest)) return;  // or an end far away
  const GuardedText from(pattern), to(replacement);
  const auto replace = [&](char* room) { Zeph_Replace(room, from.data(), to.data()); };
  EXPECT_EQ(left_in_room(longest + 1, replace, &text), expected) << text << ": " << pattern;
}

void removed_pieces(Draw& draw) {
  const std::string text = rewritten_text(draw);
  std::string pattern = draw.piece(5, "ab"), expected = text, string = text;
  if (draw.below(16) == 0) pattern = std::string(70 + draw.below(30), 'a') + "b";
  std::size_t longest;
  rewrite(expected, pattern, "", longest);
  const std::size_t capacity = string.capacity();
  Zeph_Remove(string, pattern);
  EXPECT_EQ(string, expected) << text << ": " << pattern;
  EXPECT_EQ(string.capacity(), capacity);
  const GuardedText bytes(text);
  Zeph_Remove(bytes.data(), GuardedText(pattern).data());
  EXPECT_EQ(bytes.data(), expected) << text << ": " << pattern;
  Zeph_Remove(pattern, pattern);
  EXPECT_EQ(pattern, "") << "the text as the pattern";
}

// At most one mark off each end; a head that is the whole text leaves no tail.
std::string unmarked(std::string text, const std::string& heads, const std::string& tails) {
  if (!text.empty() && heads.find(text.front()) != std::string::npos) text.erase(0, 1);
  if (!text.empty() && tails.find(text.back()) != std::string::npos) text.pop_back();
  return text;
}

void enclosing_marks(Draw& draw) {
  std::string text = draw.text(40, draw.yes() ? "\"'([{<)]}>x" : "");
  if (text.size() > 1 && draw.yes()) text.front() = text.back() = '"';
  SCOPED_TRACE(text);
  using OfString = void(std::string&);
  const auto expect = [&](auto call, OfString* library, const std::string& bytes,
                          const std::string& string) {
    const GuardedText in_place(text);
    std::string object = text, passed = text;
    call(in_place.data());
    call(object);
    library(passed);
    EXPECT_EQ(in_place.data(), bytes);
    EXPECT_EQ(object, string);
    EXPECT_EQ(passed, string);
  };
  const std::string quotes = unmarked(text, "\"'", "\"'");
  std::string brackets = unmarked(text, "([{<", ")]}>"), marked = text, out = "former", same = text;
  std::string passed = text;
  if (text.size() == 1 && std::string(")]}>").find(text) != std::string::npos) brackets = text;
  expect([](auto&& each) { Zeph_Remove_QuoteMark(each); },
         exported<OfString>(Zeph_Remove_QuoteMark), quotes, quotes);
  expect([](auto&& each) { Zeph_Remove_Bracket(each); }, exported<OfString>(Zeph_Remove_Bracket),
         brackets, brackets);
  Zeph_Remove_HeadTail(marked, 'x');
  exported(Zeph_Remove_HeadTail)(passed, 'x');
  EXPECT_EQ(marked, unmarked(text, "x", "x"));
  EXPECT_EQ(passed, marked);

  const bool both = text.size() > 1 && text.front() == '"' && text.back() == '"';
  const std::string loose = unmarked(text, "\"", "\""), strict = both ? loose : text;
  expect([](auto&& each) { Zeph_String_Check(each); }, exported<OfString>(Zeph_String_Check),
         strict, loose);
  EXPECT_EQ(Zeph_String_Check(text, out), both);
  EXPECT_EQ(Zeph_String_Check(same, same), both);
  EXPECT_EQ(out, loose);
  EXPECT_EQ(same, loose);
  const int limit = draw.any_int();
  const bool fits = both && limit >= static_cast<int>(strict.size());
  const GuardedText source(text);
  const auto check = [&](char* room) {
    EXPECT_EQ(Zeph_String_Check(source.data(), limit, room), fits);
  };
  EXPECT_EQ(left_in_room(fits ? strict.size() + 1 : 1, check),
            fits ? strict : std::string(1, GuardedBuffer::pattern));
}

}  // namespace

const Family rewriting_family{
    "rewriting", {single_bytes, pieces_onward, pieces_again, removed_pieces, enclosing_marks}};

}  // namespace zeph_test
