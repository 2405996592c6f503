// Case and blanks against the loops that a user writes.
#include <algorithm>
#include <cctype>
#include <cstring>
#include <string>

#if ZEPH_BENCH_HAS_ABSEIL
#include <absl/strings/ascii.h>
#endif
#if ZEPH_BENCH_HAS_BOOST
#include <boost/algorithm/string/case_conv.hpp>
#include <boost/algorithm/string/trim.hpp>
#endif

#include "bench.h"
#include "zeph.h"

namespace zeph_bench {
namespace {

struct Text {
  std::string source, room;
};

std::string prose(std::size_t size) {
  std::string text;
  while (text.size() < size) text += "Chamber Pressure 0.75 mTorr; ";
  text.resize(size);
  return text;
}

// ---- the peers ----

[[gnu::noinline]] int lower_by_tolower(const char* from, char* to) {
  for (; *from != '\0'; ++from, ++to) {
    *to = static_cast<char>(std::tolower(static_cast<unsigned char>(*from)));
  }
  *to = '\0';
  return 0;
}

// Written so that the compiler makes wide instructions of it.
[[gnu::noinline]] int lower_by_wide_loop(const char* from, char* to) {
  const std::size_t size = std::strlen(from);
  for (std::size_t i = 0; i < size; ++i) {
    const char byte = from[i];
    to[i] = static_cast<char>(byte >= 'A' && byte <= 'Z' ? byte + 32 : byte);
  }
  to[size] = '\0';
  return 0;
}

[[gnu::noinline]] int trim_by_loop(char* text) {
  const char* from = text;
  while (*from == ' ') ++from;
  std::size_t size = std::strlen(from);
  while (size > 0 && from[size - 1] == ' ') --size;
  std::memmove(text, from, size);
  text[size] = '\0';
  return 0;
}

[[gnu::noinline]] int trim_by_find(std::string& text) {
  text.erase(text.find_last_not_of(' ') + 1);
  text.erase(0, text.find_first_not_of(' '));
  return 0;
}

// ---- the rows ----

void add_fold_rows(std::size_t size) {
  Places& places = keep(Places());
  const char* const from = places.text(prose(size));
  char* const to = places.room(size + 1);
  const auto read = [to, size] {
    const std::string answer = to;
    std::fill(to, to + size, '#');
    return answer;
  };
  row("normalise", "Zeph_Lower", size_text(size), size)
      .outputs(read)
      .zeph([from, to] { return Orbane::Zeph_Lower(from, to), 0; })
      .peer("ASCII loop", [from, to] { return lower_by_wide_loop(from, to); })
      .peer("tolower loop", [from, to] { return lower_by_tolower(from, to); })
      .limit("memcpy", [from, to, size] { return std::memcpy(to, from, size) != nullptr; })
      .reason("it asks for the process's locale, which the loop takes for \"C\"");
  Text& s = keep(Text{prose(size), std::string(size, '#')});
  auto& strings = row("normalise", "copy, Zeph_Upper String", size_text(size), size);
  strings.outputs([&s] { return s.room; })
      .zeph([&s] { return s.room.assign(s.source), Orbane::Zeph_Upper(s.room), 0; })
      .peer("toupper loop", [&s] {
        s.room.assign(s.source);
        for (char& byte : s.room)
          byte = static_cast<char>(std::toupper(static_cast<unsigned char>(byte)));
        return 0;
      });
#if ZEPH_BENCH_HAS_ABSEIL
  strings.peer("absl::AsciiStrToUpper",
               [&s] { return s.room.assign(s.source), absl::AsciiStrToUpper(&s.room), 0; });
#else
  strings.missing_peer("abseil");
#endif
#if ZEPH_BENCH_HAS_BOOST
  strings.peer("boost::to_upper",
               [&s] { return s.room.assign(s.source), boost::to_upper(s.room), 0; });
#else
  strings.missing_peer("Boost");
#endif
}

// Each call trims a fresh copy: the copy is part of every figure.
void add_trim_rows(const std::string& text, const std::string& input) {
  Places& places = keep(Places());
  const char* const source = places.text(text);
  char* const room = places.room(text.size() + 1);
  const auto fresh = [source, room, bytes = text.size() + 1] {
    std::memcpy(room, source, bytes);
    return room;
  };
  const auto read = [room] { return std::string(room); };
  row("normalise", "copy, Zeph_Trimed", input, text.size())
      .outputs(read)
      .zeph([fresh] { return Orbane::Zeph_Trimed(fresh()), 0; })
      .peer("loops and memmove", [fresh] { return trim_by_loop(fresh()); });
  Text& s = keep(Text{text, text});
  auto& strings = row("normalise", "copy, Zeph_Trimed String", input, text.size());
  strings.outputs([&s] { return s.room; })
      .zeph([&s] { return s.room.assign(s.source), Orbane::Zeph_Trimed(s.room), 0; })
      .peer("find_..._not_of, erase",
            [&s] { return s.room.assign(s.source), trim_by_find(s.room); });
#if ZEPH_BENCH_HAS_ABSEIL
  strings.peer("absl::StripAsciiWhitespace",
               [&s] { return s.room.assign(s.source), absl::StripAsciiWhitespace(&s.room), 0; });
#endif
#if ZEPH_BENCH_HAS_BOOST
  strings.peer("boost::trim_if", [&s] {
    return s.room.assign(s.source), boost::trim_if(s.room, [](char byte) { return byte == ' '; }),
           0;
  });
#endif
}

}  // namespace

void register_normalise_rows() {
  for (const std::size_t size : {8U, 32U, 64U, 4096U, 65536U, 1048576U}) add_fold_rows(size);
  const std::string blanks(524288, ' ');
  add_trim_rows("Chamber Pressure", "16 bytes, no blanks");
  add_trim_rows("   Chamber Pressure 0.75 mTorr    ", "34 bytes, 3 and 4 blanks");
  add_trim_rows(blanks + "x" + blanks, "1 MiB of blanks, x inside");
  add_trim_rows(blanks + blanks, "1 MiB of blanks");
}

}  // namespace zeph_bench
