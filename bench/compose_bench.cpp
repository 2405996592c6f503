// Appending, printing and copying against what a user would write instead.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "bench.h"
#include "zeph.h"

#if ZEPH_BENCH_HAS_ABSEIL
#include <absl/strings/str_format.h>
#endif
#if ZEPH_BENCH_HAS_FMT
#include <fmt/format.h>
#include <fmt/printf.h>
#endif

namespace zeph_bench {
namespace {

constexpr std::size_t room_size = 2048;

// What is appended to a text of so many bytes; each call starts with that text again.
template <typename Value, typename Append>
void add_append_row(const char* operation, std::size_t size, Value value, const char* peer,
                    Append append) {
  char* const room = keep(Places()).text(std::string(size, 'x'), room_size);
  const auto start = [room, size] {
    room[size] = '\0';
    return room;
  };
  row("compose", operation, "to " + size_text(size), size)
      .reason("strcat finds the end and copies by one service; Zeph takes three calls")
      .outputs([room] { return std::string(room); })
      .zeph([start, value] { return Orbane::Zeph_Cat(start(), value) != nullptr; })
      .peer(peer, [start, value, append] { return append(start(), value), true; });
}

[[gnu::noinline]] void append_byte(char* text, char byte) {
  char* const end = text + std::strlen(text);
  end[0] = byte;
  end[1] = '\0';
}

void add_append_rows(std::size_t size) {
  Places& places = keep(Places());
  places.room(1);  // the place that the text has among its own
  const char* const more = places.text("Pressure0.75");
  add_append_row("Zeph_Cat, 12 bytes", size, more, "strcat",
                 [](char* text, const char* more) { std::strcat(text, more); });
  add_append_row("Zeph_Cat, char", size, ';', "strlen, two bytes", append_byte);
  add_append_row("Zeph_Cat, int", size, 421337, "strlen, sprintf", [](char* text, int value) {
    std::sprintf(text + std::strlen(text), "%d", value);
  });
  add_append_row(
      "Zeph_Cat, double", size, 421.337, "strlen, sprintf",
      [](char* text, double value) { std::sprintf(text + std::strlen(text), "%f", value); });
#if ZEPH_BENCH_HAS_FMT
  add_append_row("Zeph_Cat, int ", size, 421337, "strlen, fmt::format_int",
                 [](char* text, int value) {
                   const fmt::format_int digits(value);
                   std::memcpy(text + std::strlen(text), digits.data(), digits.size());
                   text[std::strlen(text)] = '\0';
                 });
#endif
}

void add_print_row(std::size_t size) {
  const char* const name = keep(Places()).text(std::string(size, 'n'));
  const int room = static_cast<int>(size) + 64;
  auto& printed = row("compose", "Zeph_Splicing, %s=%d", size_text(size), size);
  printed.zeph([name, room] { return Orbane::Zeph_Splicing(room, "%s=%d", name, 42); })
      .peer("snprintf to a String", [name, room] {
        std::string text(static_cast<std::size_t>(room), '\0');
        const int length = std::snprintf(text.data(), text.size(), "%s=%d", name, 42);
        text.resize(static_cast<std::size_t>(length));
        return text;
      });
#if ZEPH_BENCH_HAS_ABSEIL
  printed.peer("absl::StrFormat", [name] { return absl::StrFormat("%s=%d", name, 42); });
#else
  printed.missing_peer("abseil");
#endif
#if ZEPH_BENCH_HAS_FMT
  printed.peer("fmt::sprintf", [name] { return fmt::sprintf("%s=%d", name, 42); });
#else
  printed.missing_peer("fmt");
#endif
}

}  // namespace

void register_compose_rows() {
  for (const std::size_t size : {8U, 64U}) add_append_rows(size);
  for (const std::size_t size : {32U, 1024U}) add_print_row(size);
}

}  // namespace zeph_bench
