// Replacing, removing, composing and dumping against what a user would write instead.
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <regex>
#include <string>
#include <string_view>
#include <utility>

#include "bench.h"
#include "zeph.h"

#if ZEPH_BENCH_HAS_ABSEIL
#include <absl/strings/str_replace.h>
#endif
#if ZEPH_BENCH_HAS_BOOST
#include <boost/algorithm/string/erase.hpp>
#include <boost/algorithm/string/replace.hpp>
#endif
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

std::string repeat(std::string_view piece, std::size_t size) {
  std::string text;
  while (text.size() < size) text += piece;
  text.resize(size);
  return text;
}

// One pass that goes on behind a replacement: what the careful user writes, in place of the
// find-and-replace loop whose cost grows with the square of the length.
std::string replace_by_append(const std::string& text, std::string_view from, std::string_view to) {
  std::string result;
  std::size_t done = 0;
  for (std::size_t at; (at = text.find(from, done)) != std::string::npos; done = at + from.size()) {
    result.append(text, done, at - done).append(to);
  }
  return result.append(text, done, std::string::npos);
}

// The same between byte texts.
[[gnu::noinline]] const char* replace_by_strstr(const char* text, const char* from, const char* to,
                                                char* out) {
  const std::size_t from_size = std::strlen(from), to_size = std::strlen(to);
  char* end = out;
  for (const char* at; (at = std::strstr(text, from)) != nullptr; text = at + from_size) {
    const auto kept = static_cast<std::size_t>(at - text);
    std::memcpy(end, text, kept);
    std::memcpy(end + kept, to, to_size);
    end += kept + to_size;
  }
  std::memcpy(end, text, std::strlen(text) + 1);
  return out;
}

// A scan with a stack: the rule of removal in one pass, written for one pattern of two bytes.
std::string remove_by_stack(const std::string& text, std::string_view pair) {
  std::string kept;
  for (const char byte : text) {
    if (byte == pair[1] && !kept.empty() && kept.back() == pair[0]) {
      kept.pop_back();
    } else {
      kept.push_back(byte);
    }
  }
  return kept;
}

void add_replace_rows(std::size_t size) {
  const std::string& pairs = keep(repeat("ab", size));
  const std::string& nested = keep(std::string(size / 2, 'a') + std::string(size / 2, 'b'));
  std::string& work = keep(std::string());
  auto& replace =
      row("rewrite", "Zeph_Replace byte text, ab -> c", size_text(size) + " abab..", size);
  Places& places = keep(Places());
  const char* const from = places.text(pairs);
  char* const to = places.room(size + 1);
  replace
      .zeph([from, to, size] {
        std::memcpy(to, from, size + 1);
        Orbane::Zeph_Replace(to, "ab", "c");
        return static_cast<const char*>(to);
      })
      .peer("strstr, memcpy", [from, to] { return replace_by_strstr(from, "ab", "c", to); })
      .peer("find + append", [&] { return replace_by_append(pairs, "ab", "c"); });
  auto& string = row("rewrite", "Zeph_Replace String, ab -> c", size_text(size) + " abab..", size);
  string
      .zeph([&] {
        work = pairs;
        Orbane::Zeph_Replace(work, std::string("ab"), std::string("c"));
        return work;
      })
      .peer("find + append", [&] { return replace_by_append(pairs, "ab", "c"); });
#if ZEPH_BENCH_HAS_ABSEIL
  for (Row* each : {&replace, &string}) {
    each->peer("absl::StrReplaceAll", [&] { return absl::StrReplaceAll(pairs, {{"ab", "c"}}); });
  }
#else
  replace.missing_peer("abseil");
#endif
#if ZEPH_BENCH_HAS_BOOST
  string.peer("boost::replace_all", [&] {
    work = pairs;
    boost::replace_all(work, "ab", "c");
    return work;
  });
#else
  replace.missing_peer("Boost");
#endif
  row("rewrite", "Zeph_Remove, ab", size_text(size) + " aa..bb..", size)
      .zeph([&] {
        work = nested;
        Orbane::Zeph_Remove(work, std::string("ab"));
        return work;
      })
      .peer("stack of bytes", [&] { return remove_by_stack(nested, "ab"); });
  row("rewrite", "Zeph_Replace a byte", size_text(size) + " abab..", size)
      .zeph([&] {
        work = pairs;
        Orbane::Zeph_Replace(work, 'b', 'c');
        return std::string_view(work);
      })
      .peer("std::replace", [&] {
        work = pairs;
        std::replace(work.begin(), work.end(), 'b', 'c');
        return std::string_view(work);
      });
  row("rewrite", "Zeph_Remove a byte", size_text(size) + " abab..", size)
      .zeph([&] {
        work = pairs;
        Orbane::Zeph_Remove(work, 'b');
        return work;
      })
      .peer("std::remove", [&] {
        work = pairs;
        work.erase(std::remove(work.begin(), work.end(), 'b'), work.end());
        return work;
      });
}

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
  auto& dump = row("rewrite", "Zeph_To_Ascii to a buffer", size_text(size), size);
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
                          reinterpret_cast<const unsigned char*>(d.bytes.data()),
                          static_cast<long>(d.bytes.size()), ' ');
    d.shown = d.room;
    return 0;
  });
#else
  dump.missing_peer("OpenSSL");
#endif
#if ZEPH_BENCH_HAS_FMT
  dump.peer("fmt::format", [&d] {
    const auto* const from = reinterpret_cast<const unsigned char*>(d.bytes.data());
    d.own = fmt::format("{:02X}", fmt::join(from, from + d.bytes.size(), " "));
    d.shown = d.own.c_str();
    return 0;
  });
#else
  dump.missing_peer("fmt");
#endif
}

struct AlarmRow {
  char joined[512] = "";
  std::string first = "DOOR OPEN|door of chamber 2 open", second = "PUMP|pump stopped";
};

std::string join_by_append(const AlarmRow& row) {
  const std::size_t a = row.first.find('|'), b = row.second.find('|');
  std::string joined = row.first.substr(0, a);
  joined.append(" ").append(row.second, 0, b).append("|").append(row.first, a + 1);
  return joined.append(" ").append(row.second, b + 1);
}

void add_alarm_row() {
  AlarmRow& alarm = keep(AlarmRow());
  row("rewrite", "Zeph_Strcat_Alarm_Append_Text", "two texts", alarm.first.size())
      .zeph([&] {
        std::memcpy(alarm.joined, alarm.first.c_str(), alarm.first.size() + 1);
        Orbane::Zeph_Strcat_Alarm_Append_Text(alarm.joined, alarm.second.c_str());
        return std::string_view(alarm.joined);
      })
      .peer("append loop", [&] { return join_by_append(alarm); });
}

void add_name_row(const char* name) {
  static const std::regex standard("[Ss]([0-9]+)[Ff]([0-9]+)");
  auto& names = row("rewrite", "Zeph_Check_SxxFxx", name, std::strlen(name));
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
  names.requests([] { return heap_requests(1, 8) + heap_requests(1, 8); });
  names.peer("std::regex", [name] {
    std::cmatch match;
    if (!std::regex_match(name, match, standard)) return -1;
    return std::stoi(match[1]) * 256 + std::stoi(match[2]);
  });
}

}  // namespace

void register_rewrite_rows() {
  for (const std::size_t size : {64U, 1024U, 1048576U}) add_replace_rows(size);
  for (const std::size_t size : {8U, 32U, 64U, 4096U, 65536U, 1048576U}) add_dump_row(size);
  add_alarm_row();
  add_name_row("S6F11");
  add_name_row("S127F255");
}

}  // namespace zeph_bench
