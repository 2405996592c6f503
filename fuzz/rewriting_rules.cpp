// Replace, remove and enclosing marks.
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>

#include "rules.h"
#include "support/guarded_buffer.h"
#include "zeph.h"

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
  const char find = draw.yes() ? 'a' : static_cast<char>(draw.byte());
  const char replacement = draw.yes() ? 'b' : static_cast<char>(draw.byte());
  std::string expected = text, string = text + '\0' + text, cut = string;
  std::replace(expected.begin(), expected.end(), find, replacement);
  const GuardedText bytes(text);
  EXPECT_EQ(Zeph_Replace(bytes.data(), find, replacement), bytes.data());
  EXPECT_EQ(std::string(bytes.data(), bytes.size()), expected + '\0');

  std::string whole = string;
  std::replace(whole.begin(), whole.end(), find, replacement);
  Zeph_Replace(string, find, replacement);
  EXPECT_EQ(string, whole);

  std::string rest = cut;
  if (find != '\0') rest.erase(std::remove(rest.begin(), rest.end(), find), rest.end());
  Zeph_Remove(cut, find);
  EXPECT_EQ(cut, rest);
}

// A String: the search goes on behind the replacement.
void pieces_onward(Draw& draw) {
  const std::string text = draw.yes() ? draw.bytes(200) : rewritten_text(draw);
  const std::string pattern = draw.piece(4, "ab"), replacement = draw.piece(9, "abc");
  std::string expected = text, string = text;
  for (std::size_t at = 0; !pattern.empty(); at += replacement.size()) {
    at = expected.find(pattern, at);
    if (at == std::string::npos) break;
    expected.replace(at, pattern.size(), replacement);
  }
  Zeph_Replace(string, pattern, replacement);
  EXPECT_EQ(string, expected) << text << ": " << pattern << " -> " << replacement;
}

// One change at a time, from the start again after each; nothing if it takes too many.
struct Rewritten {
  std::string text;
  std::size_t longest;
};

std::optional<Rewritten> rewrite(std::string text, const std::string& pattern,
                                 const std::string& replacement, std::size_t most) {
  std::size_t longest = text.size();
  if (pattern.empty()) return Rewritten{text, longest};
  for (std::size_t at; (at = text.find(pattern)) != std::string::npos;) {
    if (most-- == 0) return std::nullopt;
    text.replace(at, pattern.size(), replacement);
    longest = std::max(longest, text.size());
  }
  return Rewritten{text, longest};
}

// A byte text, in a room of exactly what the rule needs.
void pieces_again(Draw& draw) {
  const std::string text = rewritten_text(draw);
  std::string pattern = draw.piece(4, "ab"), replacement = draw.piece(9, "abc");
  if (draw.below(8) == 0) {
    pattern = std::string(60 + draw.below(20), 'a') + "b";
    if (draw.yes()) replacement = "b" + std::string(draw.below(120), 'c');
  }
  auto expected = rewrite(text, pattern, replacement, 300);
  if (!pattern.empty() && replacement.find(pattern) != std::string::npos) {
    expected = Rewritten{text, text.size()};
  }
  if (!expected) return;  // a pair without an end, or with one far away
  const GuardedBuffer room(expected->longest + 1);
  std::copy_n(text.c_str(), text.size() + 1, room.data());
  const GuardedText from(pattern), to(replacement);
  Zeph_Replace(room.data(), from.data(), to.data());
  EXPECT_EQ(room.data(), expected->text) << text << ": " << pattern << " -> " << replacement;
}

void removed_pieces(Draw& draw) {
  const std::string text = rewritten_text(draw);
  std::string pattern = draw.piece(5, "ab");
  if (draw.below(16) == 0) pattern = std::string(70 + draw.below(30), 'a') + "b";
  const std::string expected = rewrite(text, pattern, "", text.size()).value().text;
  std::string string = text;
  const std::size_t capacity = string.capacity();
  Zeph_Remove(string, pattern);
  EXPECT_EQ(string, expected) << text << ": " << pattern;
  EXPECT_EQ(string.capacity(), capacity);
  const GuardedText bytes(text);
  Zeph_Remove(bytes.data(), GuardedText(pattern).data());
  EXPECT_EQ(bytes.data(), expected) << text << ": " << pattern;
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
  const auto expect = [&](auto bytes, auto string, const std::string& expected) {
    const GuardedText in_place(text);
    std::string object = text;
    bytes(in_place.data());
    string(object);
    EXPECT_EQ(in_place.data(), expected) << text;
    EXPECT_EQ(object, expected) << text;
  };
  const std::string quotes = unmarked(text, "\"'", "\"'");
  std::string brackets = unmarked(text, "([{<", ")]}>");
  if (text.size() == 1 && std::string(")]}>").find(text) != std::string::npos) brackets = text;
  expect([](char* s) { Zeph_Remove_QuoteMark(s); }, [](auto& s) { Zeph_Remove_QuoteMark(s); },
         quotes);
  expect([](char* s) { Zeph_Remove_Bracket(s); }, [](auto& s) { Zeph_Remove_Bracket(s); },
         brackets);
  std::string marked = text;
  Zeph_Remove_HeadTail(marked, 'x');
  EXPECT_EQ(marked, unmarked(text, "x", "x"));

  const bool both = text.size() > 1 && text.front() == '"' && text.back() == '"';
  const std::string loose = unmarked(text, "\"", "\""), strict = both ? loose : text;
  const GuardedText bytes(text), source(text);
  std::string string = text, out = "former", same = text;
  Zeph_String_Check(bytes.data());
  EXPECT_EQ(bytes.data(), strict);
  Zeph_String_Check(string);
  EXPECT_EQ(Zeph_String_Check(text, out), both);
  EXPECT_EQ(Zeph_String_Check(same, same), both);
  for (const std::string& result : {string, out, same}) EXPECT_EQ(result, loose);
  const int limit = draw.any_int();
  const bool fits = both && limit >= static_cast<int>(strict.size());
  const GuardedBuffer room(fits ? strict.size() + 1 : 1);
  EXPECT_EQ(Zeph_String_Check(source.data(), limit, room.data()), fits);
  EXPECT_EQ(std::string(room.data(), room.size()),
            fits ? strict + '\0' : std::string(1, GuardedBuffer::pattern));
}

}  // namespace

Rules rewriting_rules() {
  return {{"single bytes", single_bytes},
          {"pieces, onward", pieces_onward},
          {"pieces, again", pieces_again},
          {"removed pieces", removed_pieces},
          {"enclosing marks", enclosing_marks}};
}

}  // namespace zeph_test
