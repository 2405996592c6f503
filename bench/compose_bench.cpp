// Appending, printing and copying against what a user would write instead.
#include <algorithm>
#include <array>
#include <charconv>
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
struct Start {
  char* text;
  std::size_t size;

  char* again() const {
    text[size] = '\0';
    return text;
  }
};

template <typename Append>
auto on_start(Start start, Append append) {
  return [start, append] { return append(start.again()), true; };
}

template <typename Value>
Row& add_append_row(const char* operation, Start start, Value value) {
  return row("compose", operation, "to " + size_text(start.size), start.size)
      .reason("strcat finds the end and copies by one service; Zeph asks for both lengths")
      .outputs([start] { return std::string(start.text); })
      .zeph(on_start(start, [value](char* text) { Orbane::Zeph_Cat(text, value); }));
}

[[gnu::noinline]] void append_byte(char* text, char byte) {
  char* const end = text + std::strlen(text);
  end[0] = byte;
  end[1] = '\0';
}

[[gnu::noinline]] void append_real(char* text, double value) {
  char* const end = text + std::strlen(text);
  *std::to_chars(end, end + 320, value, std::chars_format::fixed, 6).ptr = '\0';
}

[[gnu::noinline]] void append_text(char* text, const char* more) {
  std::memcpy(text + std::strlen(text), more, std::strlen(more) + 1);
}

[[gnu::noinline]] void print_integer(char* text, int value) {
  std::sprintf(text + std::strlen(text), "%d", value);
}

[[gnu::noinline]] void print_real(char* text, double value) {
  std::sprintf(text + std::strlen(text), "%f", value);
}

[[gnu::noinline]] void append_integer(char* text, int value) {
  char* const end = text + std::strlen(text);
  *std::to_chars(end, end + 16, value).ptr = '\0';
}

void add_append_rows(std::size_t size) {
  Places& places = keep(Places());
  const Start start{places.text(std::string(size, 'x'), size + room_size), size};
  const char* const more = places.text("Pressure0.75");
  add_append_row("Zeph_Cat, 12 bytes", start, more)
      .peer("strcat", on_start(start, [more](char* text) { std::strcat(text, more); }))
      .peer("two of strlen, memcpy",
            on_start(start, [more](char* text) { append_text(text, more); }));
  add_append_row("Zeph_Cat, char", start, ';')
      .peer("strlen, two bytes", on_start(start, [](char* text) { append_byte(text, ';'); }));
  auto& integers = add_append_row("Zeph_Cat, int", start, 421337);
  integers.peer("strlen, sprintf", on_start(start, [](char* text) { print_integer(text, 421337); }))
      .peer("strlen, std::to_chars",
            on_start(start, [](char* text) { append_integer(text, 421337); }));
#if ZEPH_BENCH_HAS_FMT
  integers.peer("strlen, fmt::format_int", on_start(start, [](char* text) {
                  const fmt::format_int digits(421337);
                  append_text(text, digits.c_str());
                }));
#else
  integers.missing_peer("fmt");
#endif
  add_append_row("Zeph_Cat, double", start, 421.337)
      .peer("strlen, sprintf", on_start(start, [](char* text) { print_real(text, 421.337); }))
      .peer("strlen, std::to_chars",
            on_start(start, [](char* text) { append_real(text, 421.337); }));
  add_append_row("Zeph_Cat, float", start, 0.75F)
      .peer("strlen, sprintf", on_start(start, [](char* text) { print_real(text, 0.75); }))
      .peer("strlen, std::to_chars", on_start(start, [](char* text) { append_real(text, 0.75); }));
}

// The same format and values for everybody.
template <typename... Values>
void add_format_row(const char* format, int room, Values... values) {
  auto& printed = row("compose", std::string("Zeph_Splicing, ") + format, "short", 0);
  printed.zeph([format, room, values...] { return Orbane::Zeph_Splicing(room, format, values...); })
      .peer("snprintf to a String", [format, room, values...] {
        std::string text(static_cast<std::size_t>(room), '\0');
        const int length = std::snprintf(text.data(), text.size(), format, values...);
        text.resize(static_cast<std::size_t>(std::min(length, room - 1)));
        return text;
      });
#if ZEPH_BENCH_HAS_FMT
  printed.peer("fmt::sprintf", [format, room, values...] {
    std::string text = fmt::sprintf(format, values...);
    if (text.size() >= static_cast<std::size_t>(room)) {
      text.resize(static_cast<std::size_t>(room) - 1);
    }
    return text;
  });
#else
  printed.missing_peer("fmt");
#endif
#if ZEPH_BENCH_HAS_ABSEIL
  printed.peer("absl::FormatUntyped", [format, room, values...] {
    std::string text;
    if (!absl::FormatUntyped(&text, absl::UntypedFormatSpec(format),
                             {absl::FormatArg(values)...})) {
      text.clear();
    }
    if (text.size() >= static_cast<std::size_t>(room)) {
      text.resize(static_cast<std::size_t>(room) - 1);
    }
    return text;
  });
#else
  printed.missing_peer("abseil");
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

// ---- alarm texts ----

constexpr std::size_t alarm_room = 512;

// What a careful user writes: the first halves, a '|', the second halves, within the room.
[[gnu::noinline]] void join_alarms(char* out, const char* const* texts, std::size_t count) {
  std::string joined;
  for (std::size_t i = 0; i < count; ++i) {
    const char* const end = strchrnul(texts[i], '|');
    if (i > 0) joined += ' ';
    joined.append(texts[i], static_cast<std::size_t>(end - texts[i]));
  }
  joined += '|';
  for (std::size_t i = 0; i < count; ++i) {
    const char* const bar = std::strchr(texts[i], '|');
    if (i > 0) joined += ' ';
    joined += bar ? bar + 1 : texts[i];
  }
  const std::size_t size = std::min(joined.size(), alarm_room - 1);
  std::memcpy(out, joined.data(), size);
  out[size] = '\0';
}

// The same by appending to two rooms.
[[gnu::noinline]] void join_alarms_by_strcat(char* out, const char* const* texts,
                                             std::size_t count) {
  char first[alarm_room] = "", second[alarm_room] = "";
  for (std::size_t i = 0; i < count; ++i) {
    const char* const bar = std::strchr(texts[i], '|');
    if (i > 0) std::strcat(first, " "), std::strcat(second, " ");
    std::strncat(first, texts[i], static_cast<std::size_t>(strchrnul(texts[i], '|') - texts[i]));
    std::strcat(second, bar ? bar + 1 : texts[i]);
  }
  std::snprintf(out, alarm_room, "%s|%s", first, second);
}

// The same straight into the room, and no further than it goes: long texts fill it at once.
[[gnu::noinline]] void join_alarms_within(char* out, const char* const* texts, std::size_t count) {
  std::size_t used = 0;
  const auto add = [out, &used](const char* from, std::size_t most) {
    const std::size_t size = strnlen(from, std::min(most, alarm_room - 1 - used));
    std::memcpy(out + used, from, size);
    used += size;
  };
  for (std::size_t i = 0; i < count && used < alarm_room - 1; ++i) {
    const auto* const bar =
        static_cast<const char*>(std::memchr(texts[i], '|', strnlen(texts[i], alarm_room)));
    if (i > 0) add(" ", 1);
    add(texts[i], bar ? static_cast<std::size_t>(bar - texts[i]) : alarm_room);
  }
  add("|", 1);
  for (std::size_t i = 0; i < count && used < alarm_room - 1; ++i) {
    const char* const bar = std::strchr(texts[i], '|');
    if (i > 0) add(" ", 1);
    add(bar ? bar + 1 : texts[i], alarm_room);
  }
  out[used] = '\0';
}

using AlarmTexts = std::array<std::string, 6>;

template <std::size_t count>
void add_alarm_row(const AlarmTexts& texts, const std::string& input, std::size_t bytes) {
  struct Alarm {
    Places places;
    char* out;
    const char* texts[6];
  };
  Alarm& a = keep(Alarm{});
  for (std::size_t i = 0; i < count; ++i) a.texts[i] = a.places.text(texts[i]);
  a.out = a.places.text(texts[0], alarm_room);
  // What the call before has written over.
  const auto start = [&a, size = std::min(alarm_room, texts[0].size() + 1)] {
    return static_cast<char*>(std::memcpy(a.out, a.texts[0], size));
  };
  auto& added = row("compose", "Zeph_Strcat_Alarm_Append_Text",
                    std::to_string(count) + " texts" + input, count * bytes);
  added.outputs([&a] { return take(a.out); });
  added.zeph([&a, start] {
    const auto& t = a.texts;
    if constexpr (count == 2) Orbane::Zeph_Strcat_Alarm_Append_Text(start(), t[1]);
    if constexpr (count == 3) Orbane::Zeph_Strcat_Alarm_Append_Text(start(), t[1], t[2]);
    if constexpr (count == 4) Orbane::Zeph_Strcat_Alarm_Append_Text(start(), t[1], t[2], t[3]);
    if constexpr (count == 5) {
      Orbane::Zeph_Strcat_Alarm_Append_Text(start(), t[1], t[2], t[3], t[4]);
    }
    if constexpr (count == 6) {
      Orbane::Zeph_Strcat_Alarm_Append_Text(start(), t[1], t[2], t[3], t[4], t[5]);
    }
    return 0;
  });
  added.peer("append loop", [&a] { return join_alarms(a.out, a.texts, count), 0; });
  // This one's rooms hold no long texts.
  if (bytes < alarm_room / 6) {
    added.peer("strcat loop", [&a] { return join_alarms_by_strcat(a.out, a.texts, count), 0; });
  }
  if (bytes > 0) {
    added.peer("bounded loop", [&a] { return join_alarms_within(a.out, a.texts, count), 0; });
  }
}

// Two to six texts of `bytes` bytes each; 0 where they differ.
void add_alarm_rows(const AlarmTexts& texts, const std::string& input, std::size_t bytes) {
  add_alarm_row<2>(texts, input, bytes);
  add_alarm_row<3>(texts, input, bytes);
  add_alarm_row<4>(texts, input, bytes);
  add_alarm_row<5>(texts, input, bytes);
  add_alarm_row<6>(texts, input, bytes);
}

AlarmTexts alarms_of(std::size_t size) {
  AlarmTexts texts;
  const std::size_t half = size / 2;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    texts[i] = std::string(half, "ABCDEF"[i]) + '|' + std::string(size - half - 1, "abcdef"[i]);
  }
  return texts;
}

}  // namespace

void register_compose_rows() {
  for (const std::size_t size : {8U, 32U, 64U, 4096U, 65536U, 1048576U}) add_append_rows(size);
  for (const std::size_t size : {8U, 32U, 64U, 1024U, 4096U, 65536U, 1048576U}) add_print_row(size);
  add_format_row("%5.2f mTorr", 64, 0.75);
  add_format_row("%-8s|%08X", 64, "slot", 0xBEEFU);
  add_format_row("%d/%d/%d %s: %.3f %s", 128, 2025, 7, 29, "Pressure", 0.75, "mTorr");
  add_format_row("%s, cut", 16, "Chamber Pressure 0.75 mTorr");
  add_alarm_rows({"DOOR OPEN|door of chamber 2 open", "PUMP|pump stopped", "CHAMBER 2",
                  "GAS|gas line 4 closed", "|no operator", "STOP|process stopped"},
                 "", 0);
  for (const std::size_t size : {8U, 32U, 64U, 4096U, 65536U, 1048576U}) {
    add_alarm_rows(alarms_of(size), " of " + size_text(size), size);
  }
}

}  // namespace zeph_bench
