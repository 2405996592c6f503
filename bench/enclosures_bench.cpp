// Enclosing marks against the tests that a user writes.
#include <cstring>
#include <string>
#include <utility>

#include "bench.h"
#include "in_place.h"
#include "zeph.h"

namespace zeph_bench {
namespace {

// ---- the peers ----

struct Quotes {
  static bool opens(char byte) {
    return byte == '"' || byte == '\'';
  }
  static bool closes(char byte) {
    return opens(byte);
  }
};
struct Brackets {
  static bool opens(char byte) {
    return byte == '(' || byte == '[' || byte == '{' || byte == '<';
  }
  static bool closes(char byte) {
    return byte == ')' || byte == ']' || byte == '}' || byte == '>';
  }
};
struct DoubleQuotes {
  static bool opens(char byte) {
    return byte == '"';
  }
  static bool closes(char byte) {
    return opens(byte);
  }
};

template <typename Marks>
[[gnu::noinline]] void without_marks(char* text) {
  std::size_t size = std::strlen(text);
  if (size > 0 && Marks::opens(text[0])) std::memmove(text, text + 1, size--);
  if (size > 0 && Marks::closes(text[size - 1])) text[size - 1] = '\0';
}

template <typename Marks>
[[gnu::noinline]] void without_marks(std::string& text) {
  if (!text.empty() && Marks::opens(text.front())) text.erase(0, 1);
  if (!text.empty() && Marks::closes(text.back())) text.pop_back();
}

[[gnu::noinline]] void without_byte(std::string& text, char mark) {
  if (!text.empty() && text.front() == mark) text.erase(0, 1);
  if (!text.empty() && text.back() == mark) text.pop_back();
}

[[gnu::noinline]] void unquote(char* text) {
  const std::size_t size = std::strlen(text);
  if (size < 2 || text[0] != '"' || text[size - 1] != '"') return;
  std::memmove(text, text + 1, size - 2);
  text[size - 2] = '\0';
}

[[gnu::noinline]] bool unquote_to(const char* text, std::size_t limit, char* out) {
  const std::size_t size = std::strlen(text);
  if (size < 2 || text[0] != '"' || text[size - 1] != '"' || size - 2 > limit) return false;
  std::memcpy(out, text + 1, size - 2);
  out[size - 2] = '\0';
  return true;
}

[[gnu::noinline]] bool unquote_to(const std::string& text, std::string& out) {
  const bool opened = !text.empty() && text.front() == '"';
  const bool closed = text.size() > (opened ? 1 : 0) && text.back() == '"';
  out.assign(text, opened ? 1 : 0, text.size() - (opened ? 1 : 0) - (closed ? 1 : 0));
  return opened && closed;
}

// ---- the rows ----

template <typename Copy, typename Zeph, typename Peer>
void add_in_place_row(const char* operation, const std::string& input, Copy&& copy, Zeph zeph,
                      const char* name, Peer peer) {
  row("enclosures", operation, input, changed(copy)().size())
      .outputs(changed(copy))
      .zeph(on_a_copy(copy, zeph))
      .peer(name, on_a_copy(copy, peer));
}

void add_byte_rows(const std::string& quoted, const std::string& bracketed,
                   const std::string& input) {
  using namespace Orbane;
  const char* const peer = "tests, strlen, memmove";
  add_in_place_row(
      "copy, Zeph_Remove_QuoteMark", input, byte_copy(quoted),
      [](char* text) { Zeph_Remove_QuoteMark(text); }, peer,
      [](char* text) { without_marks<Quotes>(text); });
  add_in_place_row(
      "copy, Zeph_Remove_Bracket", input, byte_copy(bracketed),
      [](char* text) { Zeph_Remove_Bracket(text); }, peer,
      [](char* text) { without_marks<Brackets>(text); });
  add_in_place_row(
      "copy, Zeph_String_Check", input, byte_copy(quoted),
      [](char* text) { Zeph_String_Check(text); }, peer, unquote);
  const ByteCopy to = byte_copy(quoted);
  const auto limit = static_cast<int>(to.size);
  std::memset(to.room, '#', to.size - 1);
  row("enclosures", "Zeph_String_Check to a buffer", input, quoted.size())
      .outputs([to] { return take(to.room); })
      .zeph([to, limit] { return Zeph_String_Check(to.source, limit, to.room); })
      .reason("the end is looked for within the limit, as nothing behind it is read")
      .peer("tests, strlen, memcpy", [to] { return unquote_to(to.source, to.size, to.room); });
}

void add_string_rows(const std::string& quoted, const std::string& bracketed,
                     const std::string& input) {
  using namespace Orbane;
  using String = std::string;
  const char* const peer = "tests, erase";
  add_in_place_row(
      "copy, Zeph_Remove_QuoteMark String", input, string_copy(quoted),
      [](String& text) { Zeph_Remove_QuoteMark(text); }, peer,
      [](String& text) { without_marks<Quotes>(text); });
  add_in_place_row(
      "copy, Zeph_Remove_Bracket String", input, string_copy(bracketed),
      [](String& text) { Zeph_Remove_Bracket(text); }, peer,
      [](String& text) { without_marks<Brackets>(text); });
  add_in_place_row(
      "copy, Zeph_Remove_HeadTail", input, string_copy(quoted),
      [](String& text) { Zeph_Remove_HeadTail(text, '"'); }, peer,
      [](String& text) { without_byte(text, '"'); });
  add_in_place_row(
      "copy, Zeph_String_Check String", input, string_copy(quoted),
      [](String& text) { Zeph_String_Check(text); }, peer,
      [](String& text) { without_marks<DoubleQuotes>(text); });
  StringCopy& to = string_copy(quoted);
  row("enclosures", "Zeph_String_Check to a String", input, quoted.size())
      .outputs([&to] { return std::exchange(to.room, "#"); })
      .zeph([&to] { return Zeph_String_Check(to.source, to.room); })
      .peer("tests, assign", [&to] { return unquote_to(to.source, to.room); });
}

std::string prose(std::size_t size) {
  std::string text;
  while (text.size() < size) text += "Chamber Pressure 0.75 mTorr; ";
  text.resize(size);
  return text;
}

}  // namespace

void register_enclosures_rows() {
  for (const std::size_t size : {8U, 32U, 64U, 4096U, 65536U, 1048576U}) {
    const std::string inner = prose(size - 2), plain = prose(size);
    const std::string marked = size_text(size) + ", marked", none = size_text(size) + ", no marks";
    add_byte_rows('"' + inner + '"', '[' + inner + ']', marked);
    add_string_rows('"' + inner + '"', '[' + inner + ']', marked);
    add_byte_rows(plain, plain, none);
    add_string_rows(plain, plain, none);
  }
}

}  // namespace zeph_bench
