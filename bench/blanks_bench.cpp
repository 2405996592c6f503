// Blanks off the ends against the loops that a user writes.
#include <cstring>
#include <string>

#if ZEPH_BENCH_HAS_ABSEIL
#include <absl/strings/ascii.h>
#endif
#if ZEPH_BENCH_HAS_BOOST
#include <boost/algorithm/string/trim.hpp>
#endif

#include "bench.h"
#include "in_place.h"
#include "zeph.h"

namespace zeph_bench {
namespace {

// ---- the peers: the tail, the head, both ----

[[gnu::noinline]] void tail_by_loop(char* text) {
  std::size_t size = std::strlen(text);
  while (size > 0 && text[size - 1] == ' ') --size;
  text[size] = '\0';
}

[[gnu::noinline]] void head_by_loop(char* text) {
  const char* from = text;
  while (*from == ' ') ++from;
  std::memmove(text, from, std::strlen(from) + 1);
}

[[gnu::noinline]] void both_by_loop(char* text) {
  const char* from = text;
  while (*from == ' ') ++from;
  std::size_t size = std::strlen(from);
  while (size > 0 && from[size - 1] == ' ') --size;
  std::memmove(text, from, size);
  text[size] = '\0';
}

[[gnu::noinline]] void tail_by_find(std::string& text) {
  text.erase(text.find_last_not_of(' ') + 1);
}

[[gnu::noinline]] void head_by_find(std::string& text) {
  text.erase(0, text.find_first_not_of(' '));
}

[[gnu::noinline]] void both_by_find(std::string& text) {
  text.erase(text.find_last_not_of(' ') + 1);
  text.erase(0, text.find_first_not_of(' '));
}

#if ZEPH_BENCH_HAS_BOOST
constexpr auto is_blank = [](char byte) { return byte == ' '; };
#endif

// ---- the rows ----

// One function and what stands against it. What headers put into the caller is part of it, Zeph's
// as well as abseil's and Boost's.
struct Ends {
  const char* name;
  void (*of_bytes)(char*);
  void (*of_string)(std::string&);
  void (*by_loop)(char*);
  void (*by_find)(std::string&);
#if ZEPH_BENCH_HAS_ABSEIL
  void (*by_abseil)(std::string&);
#endif
#if ZEPH_BENCH_HAS_BOOST
  void (*by_boost)(std::string&);
#endif
};

const Ends tail = {
    "Zeph_Del_TailSpace",
    Orbane::Zeph_Del_TailSpace,
    [](std::string& text) { Orbane::Zeph_Del_TailSpace(text); },
    tail_by_loop,
    tail_by_find,
#if ZEPH_BENCH_HAS_ABSEIL
    [](std::string& text) { absl::StripTrailingAsciiWhitespace(&text); },
#endif
#if ZEPH_BENCH_HAS_BOOST
    [](std::string& text) { boost::trim_right_if(text, is_blank); },
#endif
};

const Ends head = {
    "Zeph_Del_HeadSpace",
    Orbane::Zeph_Del_HeadSpace,
    [](std::string& text) { Orbane::Zeph_Del_HeadSpace(text); },
    head_by_loop,
    head_by_find,
#if ZEPH_BENCH_HAS_ABSEIL
    [](std::string& text) { absl::StripLeadingAsciiWhitespace(&text); },
#endif
#if ZEPH_BENCH_HAS_BOOST
    [](std::string& text) { boost::trim_left_if(text, is_blank); },
#endif
};

const Ends both = {
    "Zeph_Trimed",
    Orbane::Zeph_Trimed,
    [](std::string& text) { Orbane::Zeph_Trimed(text); },
    both_by_loop,
    both_by_find,
#if ZEPH_BENCH_HAS_ABSEIL
    [](std::string& text) { absl::StripAsciiWhitespace(&text); },
#endif
#if ZEPH_BENCH_HAS_BOOST
    [](std::string& text) { boost::trim_if(text, is_blank); },
#endif
};

void add_rows(const Ends& ends, const std::string& text, const std::string& input) {
  const std::string name = std::string("copy, ") + ends.name;
  const ByteCopy bytes = byte_copy(text);
  row("normalise", name, input, text.size())
      .reason("the loop takes the same steps; Zeph clears what stood behind the text, too")
      .outputs(changed(bytes))
      .zeph(on_a_copy(bytes, ends.of_bytes))
      .peer("loops and memmove", on_a_copy(bytes, ends.by_loop));
  StringCopy& copy = string_copy(text);
  auto& strings = row("normalise", name + " String", input, text.size());
  strings.reason("few blanks are told in the caller by either; for more Zeph is called")
      .outputs(changed(copy))
      .zeph(on_a_copy(copy, ends.of_string))
      .peer("find_..._not_of, erase", on_a_copy(copy, ends.by_find));
#if ZEPH_BENCH_HAS_ABSEIL
  strings.peer("absl::Strip...Whitespace", on_a_copy(copy, ends.by_abseil));
#else
  strings.missing_peer("abseil");
#endif
#if ZEPH_BENCH_HAS_BOOST
  strings.peer("boost::trim_..._if", on_a_copy(copy, ends.by_boost));
#else
  strings.missing_peer("Boost");
#endif
}

// No blank at its ends, but inside.
std::string prose(std::size_t size) {
  std::string text;
  while (text.size() < size) text += "Chamber Pressure 0.75 mTorr; ";
  text.resize(size);
  text.back() = '.';
  return text;
}

std::string between_blanks(std::size_t before, const std::string& text, std::size_t behind) {
  return std::string(before, ' ') + text + std::string(behind, ' ');
}

}  // namespace

void register_blanks_rows() {
  constexpr std::size_t many = 524288;
  for (const Ends* ends : {&both, &tail, &head}) {
    add_rows(*ends, "Chamber Pressure", "16 bytes, no blanks");
    add_rows(*ends, "   Chamber Pressure 0.75 mTorr    ", "34 bytes, 3 and 4 blanks");
    for (const std::size_t size : {8U, 32U, 64U, 4096U, 65536U, 1048576U}) {
      const std::string name = size_text(size);
      add_rows(*ends, prose(size), name + ", no blanks");
      add_rows(*ends, between_blanks(3, prose(size - 7), 4), name + ", 3 and 4 blanks");
      add_rows(*ends, between_blanks(size / 4, std::string(size / 2, 'x'), size / 4),
               name + ", half of it blanks");
    }
    add_rows(*ends, between_blanks(many, "x", many), "1 MiB of blanks, x inside");
    add_rows(*ends, between_blanks(many, "", many), "1 MiB of blanks");
  }
}

}  // namespace zeph_bench
