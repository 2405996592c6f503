// Marks at the two ends of a text, at most one byte off each.
#include <cstring>
#include <string_view>

#include "frame/fixed_buffers.h"
#include "frame/string_pieces.h"
#include "zeph.h"

namespace zeph {
namespace {

constexpr char double_quote = '"';

bool is_quote(char byte) {
  return byte == double_quote || byte == '\'';
}

bool is_opening(char byte) {
  return byte == '(' || byte == '[' || byte == '{' || byte == '<';
}

bool is_closing(char byte) {
  return byte == ')' || byte == ']' || byte == '}' || byte == '>';
}

// Which ends of a text carry a mark. A single byte is a head and no tail.
struct MarkedEnds {
  bool head, tail;
};

template <typename IsHead, typename IsTail>
MarkedEnds marked_ends(std::string_view text, IsHead is_head, IsTail is_tail) {
  return {!text.empty() && is_head(text.front()), text.size() > 1 && is_tail(text.back())};
}

// What is left of a text, each end by itself.
std::string_view stripped(std::string_view text, MarkedEnds ends) {
  const std::size_t head = ends.head;
  return {text.data() + head, text.size() - head - ends.tail};
}

// A text without marks is to come through without a taken branch.
void strip(std::string& text, MarkedEnds ends) {
  if (__builtin_expect(ends.head, 0)) {
    const std::string_view left = stripped(text, ends);
    put_string(text, left.data(), left.size());
  } else if (__builtin_expect(ends.tail, 0)) {
    text.erase(text.size() - 1);
  }
}

void strip(char* text, std::size_t size, MarkedEnds ends) {
  if (ends.tail) text[--size] = '\0';
  if (ends.head) put_text(text, text + 1, size - 1);
}

template <typename IsHead, typename IsTail>
void strip_marks(std::string& text, IsHead is_head, IsTail is_tail) {
  strip(text, marked_ends(text, is_head, is_tail));
}

template <typename IsHead, typename IsTail>
void strip_marks(char* text, IsHead is_head, IsTail is_tail) {
  const std::size_t size = std::strlen(text);
  strip(text, size, marked_ends({text, size}, is_head, is_tail));
}

MarkedEnds quoted_ends(std::string_view text) {
  const auto is_double_quote = [](char byte) { return byte == double_quote; };
  return marked_ends(text, is_double_quote, is_double_quote);
}

bool both(MarkedEnds ends) {
  return ends.head && ends.tail;
}

// For what stands behind a quote. By itself, so that any other text is refused without a register
// saved.
[[gnu::noinline]] bool put_up_to_quote(const char* text, std::size_t limit, char* out) {
  const std::size_t size = strnlen(text, limit + 2);
  if (size == 0 || size > limit + 1 || text[size - 1] != double_quote) return false;
  put_text(out, text, size - 1);
  return true;
}

}  // namespace
}  // namespace zeph

namespace Orbane {

void Zeph_String_Check(char* text) {
  if (*text != zeph::double_quote) return;
  const std::size_t size = std::strlen(text);
  if (zeph::both(zeph::quoted_ends({text, size}))) zeph::put_text(text, text + 1, size - 2);
}

bool Zeph_String_Check(const char* text, int limit, char* out) {
  if (limit < 0 || *text != zeph::double_quote) return false;
  return zeph::put_up_to_quote(text + 1, static_cast<std::size_t>(limit), out);
}

void Zeph_String_Check(std::string& text) {
  zeph::strip(text, zeph::quoted_ends(text));
}

bool Zeph_String_Check(const std::string& text, std::string& out) {
  const zeph::MarkedEnds ends = zeph::quoted_ends(text);
  const std::string_view left = zeph::stripped(text, ends);
  zeph::put_string(out, left.data(), left.size());
  return zeph::both(ends);
}

void Zeph_Remove_QuoteMark(std::string& text) {
  zeph::strip_marks(text, zeph::is_quote, zeph::is_quote);
}

void Zeph_Remove_QuoteMark(char* text) {
  zeph::strip_marks(text, zeph::is_quote, zeph::is_quote);
}

void Zeph_Remove_Bracket(std::string& text) {
  zeph::strip_marks(text, zeph::is_opening, zeph::is_closing);
}

void Zeph_Remove_Bracket(char* text) {
  zeph::strip_marks(text, zeph::is_opening, zeph::is_closing);
}

void Zeph_Remove_HeadTail(std::string& text, char mark) {
  const auto is_mark = [mark](char byte) { return byte == mark; };
  zeph::strip_marks(text, is_mark, is_mark);
}

}  // namespace Orbane
