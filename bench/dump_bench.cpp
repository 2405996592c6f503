// Dumps and message names against the loops that a user writes, regular expressions and OpenSSL.
#include <charconv>
#include <cstdio>
#include <cstring>
#include <regex>
#include <string>
#include <string_view>
#include <utility>

#include "bench.h"
#include "zeph.h"

#if ZEPH_BENCH_HAS_FMT
#include <fmt/format.h>
#include <fmt/ranges.h>
#endif
#if ZEPH_BENCH_HAS_OPENSSL
#include <openssl/crypto.h>
#endif
#if ZEPH_BENCH_HAS_RE2
#include <re2/re2.h>
#endif

namespace zeph_bench {
namespace {

std::string dump_by_digits(std::string_view bytes) {
  std::string dump;
  dump.reserve(3 * bytes.size());
  for (const char byte : bytes) {
    const auto value = static_cast<unsigned char>(byte);
    if (!dump.empty()) dump.push_back(' ');
    dump.push_back("0123456789ABCDEF"[value / 16]);
    dump.push_back("0123456789ABCDEF"[value % 16]);
  }
  return dump;
}

// As few digits as a byte needs, in lower case.
std::string dump_by_short_digits(std::string_view bytes) {
  std::string dump;
  dump.reserve(3 * bytes.size());
  for (const char byte : bytes) {
    const auto value = static_cast<unsigned char>(byte);
    if (!dump.empty()) dump.push_back(' ');
    if (value >= 16) dump.push_back("0123456789abcdef"[value / 16]);
    dump.push_back("0123456789abcdef"[value % 16]);
  }
  return dump;
}

#if ZEPH_BENCH_HAS_FMT
auto unsigned_join(std::string_view bytes) {
  const auto* const from = reinterpret_cast<const unsigned char*>(bytes.data());
  return fmt::join(from, from + bytes.size(), " ");
}
#endif

std::string dump_by_snprintf(std::string_view bytes) {
  std::string dump(3 * bytes.size() + 1, '\0');
  char* out = dump.data();
  for (const char byte : bytes) out += std::snprintf(out, 4, "%02X ", byte & 0xFF);
  dump.resize(3 * bytes.size() - 1);
  return dump;
}

void add_dump_row(std::size_t size) {
  struct Dump {
    Places places;
    std::string_view bytes;
    char *room, *block = nullptr;
    std::string own;
    const char* shown = "";
  };
  Dump& d = keep(Dump());
  char* const source = d.places.room(size);
  for (std::size_t i = 0; i < size; ++i) source[i] = static_cast<char>(i * 37);
  d.bytes = {source, size};
  d.room = d.places.room(3 * size + 1);
  auto& dump = row("dump", "Zeph_To_Ascii to a buffer", size_text(size), size);
  dump.outputs([&d] { return std::string(std::exchange(d.shown, "none")); })
      .zeph([&d] {
        d.shown = Orbane::Zeph_To_Ascii(d.bytes.data(), static_cast<int>(d.bytes.size()), &d.block);
        return 0;
      })
      .peer("byte loop",
            [&d] {
              d.own = dump_by_digits(d.bytes);
              d.shown = d.own.c_str();
              return 0;
            })
      .peer("snprintf", [&d] {
        d.own = dump_by_snprintf(d.bytes);
        d.shown = d.own.c_str();
        return 0;
      });
#if ZEPH_BENCH_HAS_OPENSSL
  dump.peer("OPENSSL_buf2hexstr_ex", [&d] {
    std::size_t length = 0;
    OPENSSL_buf2hexstr_ex(d.room, 3 * d.bytes.size() + 1, &length,
                          reinterpret_cast<const unsigned char*>(d.bytes.data()), d.bytes.size(),
                          ' ');
    d.shown = d.room;
    return 0;
  });
#else
  dump.missing_peer("OpenSSL");
#endif
#if ZEPH_BENCH_HAS_FMT
  dump.peer("fmt::format", [&d] {
    d.own = fmt::format("{:02X}", unsigned_join(d.bytes));
    d.shown = d.own.c_str();
    return 0;
  });
#else
  dump.missing_peer("fmt");
#endif
}

// The forms that make a String, of bytes and of a byte text, and the byte text to a buffer.
void add_string_dump_rows(std::size_t size) {
  struct Dump {
    Places places;
    const char* text;
    int size;
    char* block = nullptr;
    std::string own;
  };
  Dump& d = keep(Dump());
  std::string text;
  for (std::size_t i = 0; i < size; ++i) text += static_cast<char>(i * 37 % 255 + 1);
  d.text = d.places.text(text);
  d.size = static_cast<int>(size);
  const auto view = [&d] { return std::string_view(d.text); };
  const auto counted = [&d] { return std::string_view(d.text, static_cast<std::size_t>(d.size)); };
  auto& texts = row("dump", "Zeph_To_Ascii of a byte text", size_text(size), size);
  texts.zeph([&d] { return Orbane::Zeph_To_Ascii(d.text); }).peer("strlen, byte loop", [view] {
    return dump_by_short_digits(view());
  });
  auto& bytes = row("dump", "Zeph_To_Ascii of bytes", size_text(size), size);
  bytes.zeph([&d] { return Orbane::Zeph_To_Ascii(d.text, d.size); }).peer("byte loop", [counted] {
    return dump_by_short_digits(counted());
  });
  row("dump", "Zeph_To_Ascii, byte text to a buffer", size_text(size), size)
      .zeph([&d] { return static_cast<const char*>(Orbane::Zeph_To_Ascii(d.text, &d.block)); })
      .peer("strlen, byte loop", [view] { return dump_by_digits(view()); });
#if ZEPH_BENCH_HAS_FMT
  texts.peer("fmt::format", [view] { return fmt::format("{:x}", unsigned_join(view())); });
  bytes.peer("fmt::format", [counted] { return fmt::format("{:x}", unsigned_join(counted())); });
#else
  texts.missing_peer("fmt");
#endif
}

[[gnu::noinline]] bool number_below_256(const char*& text, int& value) {
  const char* const end = text + std::strlen(text);
  const auto [stop, error] = std::from_chars(text, end, value);
  if (error != std::errc() || value < 0 || value > 255) return false;
  text = stop;
  return true;
}

[[gnu::noinline]] int name_by_from_chars(const char* name) {
  int stream = 0, function = 0;
  if ((name[0] | 32) != 's' || !number_below_256(++name, stream)) return -1;
  if ((name[0] | 32) != 'f' || !number_below_256(++name, function)) return -1;
  return *name == '\0' ? stream * 256 + function : -1;
}

void add_name_row(const char* text) {
  const char* const name = keep(Places()).text(text);
  static const std::regex standard("[Ss]([0-9]+)[Ff]([0-9]+)");
  auto& names = row("dump", "Zeph_Check_SxxFxx", text, std::strlen(name));
  names.reason("a number may be hexadecimal, and the letters fold by the locale");
  names.zeph([name] {
    unsigned char stream = 0, function = 0;
    return Orbane::Zeph_Check_SxxFxx(name, &stream, &function) ? stream * 256 + function : -1;
  });
#if ZEPH_BENCH_HAS_RE2
  static const re2::RE2 pattern("[Ss]([0-9]+)[Ff]([0-9]+)");
  names.peer("RE2", [name] {
    int stream = 0, function = 0;
    return re2::RE2::FullMatch(name, pattern, &stream, &function) ? stream * 256 + function : -1;
  });
#endif
  names.peer("std::from_chars", [name] { return name_by_from_chars(name); });
  names.requests([] { return heap_requests(1, 8) + heap_requests(1, 8); });
  names.peer("std::regex", [name] {
    std::cmatch match;
    if (!std::regex_match(name, match, standard)) return -1;
    return std::stoi(match[1]) * 256 + std::stoi(match[2]);
  });
}

}  // namespace

void register_dump_rows() {
  for (const std::size_t size : {8U, 32U, 64U, 4096U, 65536U, 1048576U}) {
    add_dump_row(size);
    add_string_dump_rows(size);
  }
  for (const char* const name : {"S6F11", "S127F255", "ALARM", "S6F", "S6F11x"}) add_name_row(name);
}

}  // namespace zeph_bench
