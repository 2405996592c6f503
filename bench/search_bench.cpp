// Position search in byte texts against the C library's searches and std::string_view, whose length
// comes from the text as Zeph's does.
#include <strings.h>

#include <algorithm>
#include <cctype>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

#if ZEPH_BENCH_HAS_BOOST
#include <boost/algorithm/string/find.hpp>
#endif

#include "bench.h"
#include "zeph.h"

namespace zeph_bench {
namespace {

struct Search {
  std::string text, pattern;
  Places places;
  const char *bytes, *sought;  // the two as byte texts

  Search(std::string in, std::string what)
      : text(std::move(in)),
        pattern(std::move(what)),
        bytes(places.text(text)),
        sought(places.text(pattern)) {}
};

const char* const service_reason =
    "the same service does it, behind a call into the shared object; or the C library has wider "
    "instructions";
const char* const folded_reason =
    "a call more into the shared library, and one that asks for the locale";

std::string prose(std::size_t size) {
  std::string text;
  while (text.size() < size) text += "Chamber Pressure 0.75 mTorr; ";
  text.resize(size);
  return text;
}

int place(const char* text, const char* found) {
  return found ? static_cast<int>(found - text) : -1;
}

int find_by_memmem(const char* text, const char* pattern) {
  const void* const found = memmem(text, std::strlen(text), pattern, std::strlen(pattern));
  return place(text, static_cast<const char*>(found));
}

int find_by_view(const char* text, const char* pattern) {
  const std::size_t found = std::string_view(text).find(pattern);
  return found == std::string_view::npos ? -1 : static_cast<int>(found);
}

void add_position_rows(Search& s, const std::string& input) {
  row("search", "Zeph_Find_Position", input, s.text.size())
      .reason(service_reason)
      .zeph([&s] { return Orbane::Zeph_Find_Position(s.bytes, s.sought); })
      .peer("strstr", [&s] { return place(s.bytes, strstr(s.bytes, s.sought)); })
      .peer("string_view::find", [&s] { return find_by_view(s.bytes, s.sought); })
      .peer("memmem", [&s] { return find_by_memmem(s.bytes, s.sought); })
      .limit("memchr", [&s] { return std::memchr(s.bytes, '\0', s.text.size() + 1) != nullptr; });
  auto& folded = row("search", "Zeph_Find_Position_L", input, s.text.size());
  folded.reason(folded_reason);
  folded.zeph([&s] { return Orbane::Zeph_Find_Position_L(s.bytes, s.sought); })
      .peer("strcasestr", [&s] { return place(s.bytes, strcasestr(s.bytes, s.sought)); })
      .limit("memchr", [&s] { return std::memchr(s.bytes, '\0', s.text.size() + 1) != nullptr; });
#if ZEPH_BENCH_HAS_BOOST
  // Its locale test for each byte takes minutes of rounds for longer texts, and tells no more.
  if (s.text.size() > 4096) return;
  folded.peer("boost::ifind_first", [&s] {
    const auto found = boost::ifind_first(s.text, s.pattern);
    return found.empty() ? -1 : static_cast<int>(found.begin() - s.text.begin());
  });
#else
  folded.missing_peer("Boost");
#endif
}

void add_contains_rows(Search& s, const std::string& input) {
  row("search", "Zeph_Find_SubString", input, s.text.size())
      .reason(service_reason)
      .zeph([&s] { return Orbane::Zeph_Find_SubString(s.bytes, s.sought); })
      .peer("strstr", [&s] { return strstr(s.bytes, s.sought) != nullptr; })
      .peer("string_view::find",
            [&s] { return std::string_view(s.bytes).find(s.sought) != std::string_view::npos; });
  row("search", "Zeph_Find_SubString_L", input, s.text.size())
      .reason(folded_reason)
      .zeph([&s] { return Orbane::Zeph_Find_SubString_L(s.bytes, s.sought); })
      .peer("strcasestr", [&s] { return strcasestr(s.bytes, s.sought) != nullptr; });
}

// ---- all but the first and the last byte of the text ----

[[gnu::noinline]] int find_in_slice(const char* text, std::size_t begin, std::size_t end,
                                    const char* pattern) {
  const std::size_t size = strnlen(text, end);
  if (size < begin) return -1;
  const void* const found = memmem(text + begin, size - begin, pattern, std::strlen(pattern));
  return place(text, static_cast<const char*>(found));
}

[[gnu::noinline]] int find_folded_in_slice(const char* text, std::size_t begin, std::size_t end,
                                           const char* pattern) {
  const std::size_t size = strnlen(text, end), pattern_size = std::strlen(pattern);
  for (std::size_t at = begin; at + pattern_size <= size; ++at) {
    if (strncasecmp(text + at, pattern, pattern_size) == 0) return static_cast<int>(at);
  }
  return -1;
}

[[gnu::noinline]] int search_folded_in_slice(const char* text, std::size_t begin, std::size_t end,
                                             const char* pattern) {
  const char* const last = text + strnlen(text, end);
  const auto fold = [](char byte) { return std::tolower(static_cast<unsigned char>(byte)); };
  const char* const found = std::search(text + begin, last, pattern, pattern + std::strlen(pattern),
                                        [fold](char a, char b) { return fold(a) == fold(b); });
  return found == last ? -1 : static_cast<int>(found - text);
}

void add_exact_range_rows(Search& s, const std::string& input) {
  const std::size_t end = s.text.size() - 1;
  const int stop = static_cast<int>(end);
  row("search", "Zeph_Find_Position, a range", input, s.text.size())
      .zeph([&s, stop] { return Orbane::Zeph_Find_Position(s.bytes, 1, stop, s.sought); })
      .peer("strnlen, memmem", [&s, end] { return find_in_slice(s.bytes, 1, end, s.sought); });
  row("search", "Zeph_Find_SubString, a range", input, s.text.size())
      .zeph([&s, stop] { return Orbane::Zeph_Find_SubString(s.bytes, 1, stop, s.sought); })
      .peer("strnlen, memmem", [&s, end] { return find_in_slice(s.bytes, 1, end, s.sought) >= 0; });
}

void add_folded_range_rows(Search& s, const std::string& input) {
  const std::size_t end = s.text.size() - 1;
  const int stop = static_cast<int>(end);
  row("search", "Zeph_Find_Position_L, a range", input, s.text.size())
      .reason(folded_reason)
      .zeph([&s, stop] { return Orbane::Zeph_Find_Position_L(s.bytes, 1, stop, s.sought); })
      .peer("strncasecmp loop",
            [&s, end] { return find_folded_in_slice(s.bytes, 1, end, s.sought); })
      .peer("std::search", [&s, end] { return search_folded_in_slice(s.bytes, 1, end, s.sought); });
  row("search", "Zeph_Find_SubString_L, a range", input, s.text.size())
      .reason(folded_reason)
      .zeph([&s, stop] { return Orbane::Zeph_Find_SubString_L(s.bytes, 1, stop, s.sought); })
      .peer("strncasecmp loop",
            [&s, end] { return find_folded_in_slice(s.bytes, 1, end, s.sought) >= 0; })
      .peer("std::search",
            [&s, end] { return search_folded_in_slice(s.bytes, 1, end, s.sought) >= 0; });
}

// ---- the inputs, the same for all eight operations ----

void add_whole_rows(Search& s, const std::string& input) {
  add_position_rows(s, input);
  add_contains_rows(s, input);
}

void add_range_rows(Search& s, const std::string& input) {
  add_exact_range_rows(s, input);
  add_folded_range_rows(s, input);
}

void add_rows(Search search, const std::string& input) {
  Search& s = keep(std::move(search));
  add_whole_rows(s, input);
  add_range_rows(s, input);
}

void add_adversarial_row(Search search, const std::string& input) {
  Search& s = keep(std::move(search));
  add_whole_rows(s, input);
  add_exact_range_rows(s, input);
  // The peers of a folded range begin the pattern anew at every byte: their time is the length of
  // the text by that of the pattern, which the longest of these texts are not given to.
  if (s.text.size() <= 65536) add_folded_range_rows(s, input);
}

void add_adversarial_rows(std::size_t size) {
  const std::string run(64, 'a'), half(32, 'a'), text(size, 'a'), name = size_text(size);
  add_adversarial_row({text, run + "b"}, name + ", a..a, a..ab");
  add_adversarial_row({text, "b" + run}, name + ", a..a, ba..a");
  add_adversarial_row({text, half + "b" + half}, name + ", a..a, a..aba..a");
  // Many places where all but the far end of the pattern meets, for which no single byte tells.
  std::string abab, block;
  while (abab.size() < size) abab += abab.size() % 129 == 128 ? "b" : "ab";
  while (block.size() < 256) block += "ab";
  add_adversarial_row({abab, "ababababababac"}, name + ", abab.., short");
  add_adversarial_row({abab, block + "c"}, name + ", abab.., ab..abc");
  add_adversarial_row({abab, block + "b" + block}, name + ", abab.., ab..bab..");
}

void add_prose_rows(std::size_t size) {
  const std::string text = prose(size), name = size_text(size);
  std::string alarm = text;
  alarm.replace(size - 6, 5, "ALARM");
  add_rows({alarm, "ALARM"}, name + ", at the end");
  add_rows({text, "Pressed"}, name + ", near misses");
  add_rows({text, "#"}, name + ", one byte, none");
  // The range starts at the second byte, and so does what stands at its start.
  add_whole_rows(keep(Search(text, "Chamber")), name + ", at the start");
  add_range_rows(keep(Search(text, "hamber")), name + ", at the start");
}

}  // namespace

void register_search_rows() {
  add_rows({"S1F13", "F"}, "5 bytes, F");
  for (const std::size_t size : {8U, 32U, 64U, 4096U, 65536U, 1048576U}) add_prose_rows(size);
  for (const std::size_t size : {4096U, 65536U, 1048576U}) add_adversarial_rows(size);
}

}  // namespace zeph_bench
