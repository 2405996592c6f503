// Comparison against the runtime's own services, on texts that are equal (the whole length is
// read) and on texts that differ in their first, middle or last byte.
#include <strings.h>

#include <cstring>
#include <string>
#include <utility>

#if ZEPH_BENCH_HAS_ABSEIL
#include <absl/strings/match.h>
#endif
#if ZEPH_BENCH_HAS_BOOST
#include <boost/algorithm/string/predicate.hpp>
#endif

#include "bench.h"
#include "zeph.h"

namespace zeph_bench {
namespace {

struct Pair {
  std::string a, b;
  Places places;
  char *a_bytes, *b_bytes;
  int n;  // the count of the prefix members
  std::size_t size;

  Pair(std::string first, std::string second, std::size_t count)
      : a(std::move(first)),
        b(std::move(second)),
        a_bytes(places.text(a)),
        b_bytes(places.text(b)),
        n(static_cast<int>(count)),
        size(count) {}
};

std::string prose(std::size_t size) {
  std::string text;
  while (text.size() < size) text += "Chamber Pressure 0.75 mTorr; ";
  text.resize(size);
  return text;
}

std::string upper(std::string text) {
  for (char& byte : text) byte = static_cast<char>(byte >= 'a' && byte <= 'z' ? byte - 32 : byte);
  return text;
}

const char* const own_way = "a zero byte ends a String's text and is looked for, too";
const char* const same_service =
    "the same service does it; a call into the shared object comes first, and one to the service";

void add_byte_row(Pair& t, const std::string& input) {
  row("compare", "Zeph_Compare", input, t.a.size())
      .zeph([&t] { return Orbane::Zeph_Compare(t.a_bytes, t.b_bytes); })
      .peer("strcmp", [&t] { return std::strcmp(t.a_bytes, t.b_bytes) == 0; })
      .limit("memcmp", [&t] { return std::memcmp(t.a_bytes, t.b_bytes, t.a.size()); })
      .reason(same_service);
}

void add_folded_byte_row(Pair& t, const std::string& input) {
  row("compare", "Zeph_Compare_L", input, t.a.size())
      .zeph([&t] { return Orbane::Zeph_Compare_L(t.a_bytes, t.b_bytes); })
      .peer("strcasecmp", [&t] { return strcasecmp(t.a_bytes, t.b_bytes) == 0; })
      .reason(same_service);
}

// The first n bytes, of byte texts and of Strings.
void add_prefix_rows(Pair& t, const std::string& input) {
  row("compare", "Zeph_Compare n", input, t.size)
      .zeph([&t] { return Orbane::Zeph_Compare(t.a_bytes, t.b_bytes, t.n); })
      .peer("strncmp", [&t] { return std::strncmp(t.a_bytes, t.b_bytes, t.size) == 0; })
      .reason(same_service);
  row("compare", "Zeph_Compare String n", input, t.size)
      .zeph([&t] { return Orbane::Zeph_Compare(t.a, t.b, t.n); })
      .peer("strncmp of c_str",
            [&t] { return std::strncmp(t.a.c_str(), t.b.c_str(), t.size) == 0; })
      .peer("std::string::compare", [&t] { return t.a.compare(0, t.size, t.b, 0, t.size) == 0; })
      .reason(own_way);
}

void add_folded_prefix_rows(Pair& t, const std::string& input) {
  row("compare", "Zeph_Compare_L n", input, t.size)
      .zeph([&t] { return Orbane::Zeph_Compare_L(t.a_bytes, t.b_bytes, t.n); })
      .peer("strncasecmp", [&t] { return strncasecmp(t.a_bytes, t.b_bytes, t.size) == 0; })
      .reason(same_service);
  auto& strings = row("compare", "Zeph_Compare_L String n", input, t.size);
  strings.zeph([&t] { return Orbane::Zeph_Compare_L(t.a, t.b, t.n); })
      .peer("strncasecmp of c_str",
            [&t] { return strncasecmp(t.a.c_str(), t.b.c_str(), t.size) == 0; })
      .reason(same_service);
#if ZEPH_BENCH_HAS_ABSEIL
  strings.peer("absl::EqualsIgnoreCase", [&t] {
    const absl::string_view a(t.a), b(t.b);
    return absl::EqualsIgnoreCase(a.substr(0, t.size), b.substr(0, t.size));
  });
#else
  strings.missing_peer("abseil");
#endif
}

void add_string_row(Pair& t, const std::string& input) {
  row("compare", "Zeph_Compare String", input, t.a.size())
      .zeph([&t] { return Orbane::Zeph_Compare(t.a, t.b); })
      .peer("strcmp of c_str", [&t] { return std::strcmp(t.a.c_str(), t.b.c_str()) == 0; })
      .peer("std::string ==", [&t] { return t.a == t.b; })
      .reason(own_way);
}

void add_folded_string_row(Pair& t, const std::string& input) {
  auto& strings = row("compare", "Zeph_Compare_L String", input, t.a.size());
  strings.zeph([&t] { return Orbane::Zeph_Compare_L(t.a, t.b); })
      .peer("strcasecmp of c_str", [&t] { return strcasecmp(t.a.c_str(), t.b.c_str()) == 0; })
      .reason(same_service);
#if ZEPH_BENCH_HAS_ABSEIL
  strings.peer("absl::EqualsIgnoreCase", [&t] { return absl::EqualsIgnoreCase(t.a, t.b); });
#else
  strings.missing_peer("abseil");
#endif
#if ZEPH_BENCH_HAS_BOOST
  strings.peer("boost::iequals", [&t] { return boost::iequals(t.a, t.b); });
#else
  strings.missing_peer("Boost");
#endif
}

void add_exact_rows(Pair& t, const std::string& input) {
  add_byte_row(t, input);
  add_string_row(t, input);
  add_prefix_rows(t, input);
}

void add_folded_rows(Pair& t, const std::string& input) {
  add_folded_byte_row(t, input);
  add_folded_string_row(t, input);
  add_folded_prefix_rows(t, input);
}

void add_equal_rows(std::size_t size) {
  const std::string text = prose(size);
  Pair& equal = keep(Pair(text, text, size - 1));
  Pair& folded = keep(Pair(text, upper(text), size - 1));
  add_exact_rows(equal, size_text(size) + ", equal");
  add_folded_rows(folded, size_text(size) + ", other case");
}

void add_differing_rows(std::size_t size, std::size_t place, const std::string& where) {
  const std::string text = prose(size), input = size_text(size) + ", " + where + " differs";
  std::string other = text;
  other[place] = '#';
  Pair& exact = keep(Pair(text, other, size));
  Pair& folded = keep(Pair(text, upper(other), size));
  add_exact_rows(exact, input);
  add_folded_rows(folded, input);
}

}  // namespace

void register_compare_rows() {
  for (const std::size_t size : {8U, 32U, 64U, 4096U, 65536U, 1048576U}) {
    add_equal_rows(size);
    add_differing_rows(size, 0, "first");
    add_differing_rows(size, size / 2, "middle");
    add_differing_rows(size, size - 1, "last");
  }
}

}  // namespace zeph_bench
