// Comparison against the runtime's own services, on texts that are equal (the whole length is
// read) and on texts that differ in their first and in their last byte.
#include <strings.h>

#include <cstring>
#include <string>

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
  char *a_bytes, *b_bytes;
  Places places;
  int n;  // the count of the prefix members: all but the last byte
};

Pair make_pair(std::size_t size, bool fold, char first) {
  Pair pair{};
  while (pair.a.size() < size) pair.a += "Chamber Pressure 0.75 mTorr; ";
  pair.a.resize(size);
  pair.b = pair.a;
  if (fold) {
    for (char& byte : pair.b)
      byte = byte >= 'a' && byte <= 'z' ? static_cast<char>(byte - 32) : byte;
  }
  pair.b.front() = first;
  pair.n = static_cast<int>(size) - 1;
  pair.a_bytes = pair.places.text(pair.a);
  pair.b_bytes = pair.places.text(pair.b);
  return pair;
}

void add_exact_rows(Pair& t, const std::string& input) {
  row("compare", "Zeph_Compare", input, t.a.size())
      .zeph([&t] { return Orbane::Zeph_Compare(t.a_bytes, t.b_bytes); })
      .peer("strcmp", [&t] { return std::strcmp(t.a_bytes, t.b_bytes) == 0; })
      .limit("memcmp", [&t] { return std::memcmp(t.a_bytes, t.b_bytes, t.a.size()); })
      .reason(
          "the same service does it; a call into the shared object comes first, and one to the "
          "service");
  row("compare", "Zeph_Compare String", input, t.a.size())
      .zeph([&t] { return Orbane::Zeph_Compare(t.a, t.b); })
      .peer("strcmp of c_str", [&t] { return std::strcmp(t.a.c_str(), t.b.c_str()) == 0; })
      .peer("std::string ==", [&t] { return t.a == t.b; })
      .reason("a call into the shared object; what it does there takes a nanosecond");
  row("compare", "Zeph_Compare n", input, t.a.size())
      .zeph([&t] { return Orbane::Zeph_Compare(t.a_bytes, t.b_bytes, t.n); })
      .peer("strncmp",
            [&t] { return std::strncmp(t.a_bytes, t.b_bytes, static_cast<std::size_t>(t.n)) == 0; })
      .reason(
          "the same service does it; a call into the shared object comes first, and one to the "
          "service");
}

void add_fold_rows(Pair& t, const std::string& input) {
  row("compare", "Zeph_Compare_L", input, t.a.size())
      .zeph([&t] { return Orbane::Zeph_Compare_L(t.a_bytes, t.b_bytes); })
      .peer("strcasecmp", [&t] { return strcasecmp(t.a_bytes, t.b_bytes) == 0; })
      .reason(
          "the same service does it; a call into the shared object comes first, and one to the "
          "service");
  auto& strings = row("compare", "Zeph_Compare_L String", input, t.a.size());
  strings.zeph([&t] { return Orbane::Zeph_Compare_L(t.a, t.b); })
      .peer("strcasecmp of c_str", [&t] { return strcasecmp(t.a.c_str(), t.b.c_str()) == 0; })
      .reason(
          "the same service does it; a call into the shared object comes first, and one to the "
          "service");
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
  row("compare", "Zeph_Compare_L n", input, t.a.size())
      .zeph([&t] { return Orbane::Zeph_Compare_L(t.a_bytes, t.b_bytes, t.n); })
      .peer("strncasecmp",
            [&t] { return strncasecmp(t.a_bytes, t.b_bytes, static_cast<std::size_t>(t.n)) == 0; })
      .reason(
          "the same service does it; a call into the shared object comes first, and one to the "
          "service");
}

}  // namespace

void register_compare_rows() {
  for (const std::size_t size : {8U, 32U, 64U, 4096U, 65536U, 1048576U}) {
    add_exact_rows(keep(make_pair(size, false, 'C')), size_text(size) + ", equal");
    add_fold_rows(keep(make_pair(size, true, 'C')), size_text(size) + ", other case");
  }
  Pair& first = keep(make_pair(64, false, '#'));
  add_exact_rows(first, "64 bytes, first differs");
  add_fold_rows(first, "64 bytes, first differs");
}

}  // namespace zeph_bench
