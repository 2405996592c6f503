// Letters folded to one case against the loops that a user writes.
#include <algorithm>
#include <cctype>
#include <cstring>
#include <string>

#if ZEPH_BENCH_HAS_ABSEIL
#include <absl/strings/ascii.h>
#endif
#if ZEPH_BENCH_HAS_BOOST
#include <boost/algorithm/string/case_conv.hpp>
#endif

#include "bench.h"
#include "in_place.h"
#include "zeph.h"

namespace zeph_bench {
namespace {

std::string prose(std::size_t size) {
  std::string text;
  while (text.size() < size) text += "Chamber Pressure 0.75 mTorr; ";
  text.resize(size);
  return text;
}

// ---- the peers ----

// The two folds: the letters that change, and how.
struct ToLower {
  static constexpr char first = 'A', last = 'Z';
  static int by_locale(int byte) {
    return std::tolower(byte);
  }
#if ZEPH_BENCH_HAS_ABSEIL
  static void by_abseil(std::string& text) {
    absl::AsciiStrToLower(&text);
  }
#endif
#if ZEPH_BENCH_HAS_BOOST
  static void by_boost(std::string& text) {
    boost::to_lower(text);
  }
#endif
};
struct ToUpper {
  static constexpr char first = 'a', last = 'z';
  static int by_locale(int byte) {
    return std::toupper(byte);
  }
#if ZEPH_BENCH_HAS_ABSEIL
  static void by_abseil(std::string& text) {
    absl::AsciiStrToUpper(&text);
  }
#endif
#if ZEPH_BENCH_HAS_BOOST
  static void by_boost(std::string& text) {
    boost::to_upper(text);
  }
#endif
};

template <typename Fold>
[[gnu::noinline]] int fold_by_locale(const char* from, char* to) {
  for (; *from != '\0'; ++from, ++to) {
    *to = static_cast<char>(Fold::by_locale(static_cast<unsigned char>(*from)));
  }
  *to = '\0';
  return 0;
}

// Written so that the compiler makes wide instructions of it.
template <typename Fold>
void fold_bytes(const char* from, char* to, std::size_t size) {
  for (std::size_t i = 0; i < size; ++i) {
    const char byte = from[i];
    to[i] = static_cast<char>(byte >= Fold::first && byte <= Fold::last ? byte ^ 32 : byte);
  }
}

template <typename Fold>
[[gnu::noinline]] int fold_by_wide_loop(const char* from, char* to) {
  const std::size_t size = std::strlen(from);
  fold_bytes<Fold>(from, to, size);
  to[size] = '\0';
  return 0;
}

template <typename Fold>
[[gnu::noinline]] void fold_in_place(char* text) {
  fold_bytes<Fold>(text, text, std::strlen(text));
}

template <typename Fold>
[[gnu::noinline]] int fold_string(const std::string& from, std::string& to) {
  to.resize(from.size());
  fold_bytes<Fold>(from.data(), to.data(), from.size());
  return 0;
}

template <typename Fold>
[[gnu::noinline]] int transform_string(const std::string& from, std::string& to) {
  to.resize(from.size());
  std::transform(from.begin(), from.end(), to.begin(),
                 [](unsigned char byte) { return static_cast<char>(Fold::by_locale(byte)); });
  return 0;
}

// ---- the rows ----

const char* const locale_reason =
    "it asks for the process's locale, which the loop takes for \"C\"";

template <typename Fold, typename Zeph>
void add_byte_row(const char* operation, std::size_t size, Zeph zeph) {
  Places& places = keep(Places());
  const char* const from = places.text(prose(size));
  char* const to = places.room(size + 1);
  row("normalise", operation, size_text(size), size)
      .outputs([to, size] {
        const std::string answer = to;
        std::fill(to, to + size, '#');
        return answer;
      })
      .zeph([from, to, zeph] { return zeph(from, to), 0; })
      .peer("ASCII loop", [from, to] { return fold_by_wide_loop<Fold>(from, to); })
      .peer("locale's loop", [from, to] { return fold_by_locale<Fold>(from, to); })
      .limit("memcpy", [from, to, size] { return std::memcpy(to, from, size) != nullptr; })
      .reason(locale_reason);
}

template <typename Fold, typename Zeph>
void add_in_place_row(const char* operation, std::size_t size, Zeph zeph) {
  const ByteCopy copy = byte_copy(prose(size));
  row("normalise", operation, size_text(size), size)
      .outputs(changed(copy))
      .zeph(on_a_copy(copy, zeph))
      .peer("ASCII loop", on_a_copy(copy, fold_in_place<Fold>))
      .reason(locale_reason);
}

template <typename Fold, typename Zeph>
void add_string_row(const char* operation, std::size_t size, Zeph zeph) {
  StringCopy& s = string_copy(prose(size));
  row("normalise", operation, size_text(size), size)
      .outputs(changed(s))
      .zeph([&s, zeph] { return zeph(s.source, s.room), 0; })
      .peer("resize, ASCII loop", [&s] { return fold_string<Fold>(s.source, s.room); })
      .peer("std::transform", [&s] { return transform_string<Fold>(s.source, s.room); })
      .reason(locale_reason);
}

template <typename Fold, typename Zeph>
void add_string_in_place_row(const char* operation, std::size_t size, Zeph zeph) {
  StringCopy& s = string_copy(prose(size));
  auto& added = row("normalise", operation, size_text(size), size);
  added.outputs(changed(s)).zeph(on_a_copy(s, zeph)).reason(locale_reason);
  added.peer("locale's loop", on_a_copy(s, [](std::string& text) {
               for (char& byte : text) {
                 byte = static_cast<char>(Fold::by_locale(static_cast<unsigned char>(byte)));
               }
             }));
#if ZEPH_BENCH_HAS_ABSEIL
  added.peer("absl::AsciiStrTo...", on_a_copy(s, Fold::by_abseil));
#else
  added.missing_peer("abseil");
#endif
#if ZEPH_BENCH_HAS_BOOST
  added.peer("boost::to_...", on_a_copy(s, Fold::by_boost));
#else
  added.missing_peer("Boost");
#endif
}

}  // namespace

void register_normalise_rows() {
  using namespace Orbane;
  using String = std::string;
  for (const std::size_t size : {8U, 32U, 64U, 4096U, 65536U, 1048576U}) {
    add_byte_row<ToLower>("Zeph_Lower", size,
                          [](const char* from, char* to) { Zeph_Lower(from, to); });
    add_byte_row<ToUpper>("Zeph_Upper", size,
                          [](const char* from, char* to) { Zeph_Upper(from, to); });
    add_in_place_row<ToLower>("copy, Zeph_Lower in place", size,
                              [](char* text) { Zeph_Lower(text); });
    add_in_place_row<ToUpper>("copy, Zeph_Upper in place", size,
                              [](char* text) { Zeph_Upper(text); });
    add_string_in_place_row<ToLower>("copy, Zeph_Lower String", size,
                                     [](String& text) { Zeph_Lower(text); });
    add_string_in_place_row<ToUpper>("copy, Zeph_Upper String", size,
                                     [](String& text) { Zeph_Upper(text); });
    add_string_row<ToLower>("Zeph_Lower String to String", size,
                            [](const String& from, String& to) { Zeph_Lower(from, to); });
    add_string_row<ToUpper>("Zeph_Upper String to String", size,
                            [](const String& from, String& to) { Zeph_Upper(from, to); });
  }
}

}  // namespace zeph_bench
