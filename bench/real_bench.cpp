// Real-number texts against the runtime's services, the C++ standard library's conversions and
// fast_float.
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>

#include "number_batch.h"
#include "zeph.h"

#if ZEPH_BENCH_HAS_ABSEIL
#include <absl/strings/numbers.h>
#endif
#if ZEPH_BENCH_HAS_FMT
#include <fmt/format.h>
#endif
#if ZEPH_BENCH_HAS_FAST_FLOAT
#include <fast_float/fast_float.h>
#endif

namespace zeph_bench {
namespace {

using String = std::string;

// What `read(text, &value)` stores.
template <typename Text, typename Read>
auto stored(const std::vector<Text>& texts, Read read) {
  return sum_of(texts, [read](const Text& text) {
    double value = 0;
    read(text, &value);
    return value;
  });
}

#if ZEPH_BENCH_HAS_FAST_FLOAT
double by_fast_float(const char* begin, const char* end) {
  double value = 0;
  fast_float::from_chars(begin, end, value);
  return value;
}
#endif

void add_read_rows(const Batch& batch, const std::string& input) {
  const char* const reason = "it asks which decimal point the locale has; the peers take '.'";
  Row& bytes = row("number", "Zeph_To_Double", input, batch.size);
  bytes.reason(reason)
      .zeph(stored(batch.bytes,
                   [](ByteText t, double* value) { Orbane::Zeph_To_Double(t.at, value); }))
      .peer("strtod", sum_of(batch.bytes, [](ByteText t) { return std::strtod(t.at, nullptr); }))
      .peer("strlen, std::from_chars", sum_of(batch.bytes, from_byte_text<double>));
  Row& strings = row("number", "Zeph_To_Double String", input, batch.size);
  strings.reason(reason)
      .zeph(stored(batch.strings,
                   [](const String& t, double* value) { Orbane::Zeph_To_Double(t, value); }))
      .peer("std::stod", sum_of(batch.strings, [](const String& t) { return std::stod(t); }))
      .peer("std::from_chars", sum_of(batch.strings, from_string<double>));
#if ZEPH_BENCH_HAS_FAST_FLOAT
  bytes.peer("strlen, fast_float", sum_of(batch.bytes, [](ByteText t) {
               return by_fast_float(t.at, t.at + std::strlen(t.at));
             }));
  strings.peer("fast_float", sum_of(batch.strings, [](const String& t) {
                 return by_fast_float(t.data(), t.data() + t.size());
               }));
#else
  bytes.missing_peer("fast_float");
#endif
#if ZEPH_BENCH_HAS_ABSEIL
  strings.peer("absl::SimpleAtod", sum_of(batch.strings, [](const String& t) {
                 double value = 0;
                 return absl::SimpleAtod(t, &value) ? value : -1;
               }));
#else
  strings.missing_peer("abseil");
#endif
}

void add_format_rows(const Batch& batch, const std::string& input, int code) {
  constexpr std::size_t room = 400;
  char* const out = keep(Places()).room(room);
  const bool fixed = code >= 0;
  const int decimals = fixed ? code : -code;
  const char* const format = fixed ? "%.*f" : "%.*e";
  const auto notation = fixed ? std::chars_format::fixed : std::chars_format::scientific;
  const auto each = [&batch](auto write) {
    return [&batch, write] {
      for (const double value : batch.values) write(value);
      return 0;
    };
  };
  auto& texts = row("number", "Zeph_Conv_Dbl_To_Str " + std::to_string(code), input, batch.size);
  texts
      .outputs([out] {
        const std::string text = out;
        out[0] = '\0';
        return text;
      })
      .zeph(each([out, code](double value) { Orbane::Zeph_Conv_Dbl_To_Str(value, code, out); }))
      .peer("snprintf", each([out, format, decimals](double value) {
              std::snprintf(out, room, format, decimals, value);
            }))
      .peer("std::to_chars", each([out, notation, decimals](double value) {
              *std::to_chars(out, out + room, value, notation, decimals).ptr = '\0';
            }));
#if ZEPH_BENCH_HAS_FMT
  texts.peer("fmt::format_to", each([out, fixed, decimals](double value) {
               *(fixed ? fmt::format_to(out, "{:.{}f}", value, decimals)
                       : fmt::format_to(out, "{:.{}e}", value, decimals)) = '\0';
             }));
#else
  texts.missing_peer("fmt");
#endif
}

}  // namespace

void register_real_rows() {
  using Random = std::mt19937_64;
  const auto uniform = [](Random& random) { return std::generate_canonical<double, 53>(random); };
  const auto spread = [=](Random& r, unsigned powers) {
    const int power = static_cast<int>(r() % powers) - static_cast<int>(powers / 2);
    return uniform(r) * std::pow(10, power);
  };
  const auto below_1000 = [](Random& r) { return static_cast<int>(r() % 1000); };
  const Batch& two = keep(make_batch("%.2f", [=](Random& r) { return uniform(r) * 1000; }));
  const Batch& six = keep(make_batch("%.6f", [=](Random& r) { return uniform(r) * 1e6 - 5e5; }));
  const Batch& extreme = keep(make_batch("%.17g", [=](Random& r) { return spread(r, 600); }));
  add_read_rows(keep(make_batch("%d", below_1000)), "64 of 1-3 digits");
  add_read_rows(two, "64 with 2 decimals");
  add_read_rows(six, "64 with 6 decimals");
  add_read_rows(keep(make_batch("%.3e", [=](Random& r) { return spread(r, 20); })),
                "64 with exponent");
  add_read_rows(keep(make_batch("%.17g", uniform)), "64 of 17 digits");
  add_read_rows(extreme, "64 of 17 digits, 1e-300 to 1e300");
  for (const int code : {0, 2, 6, 10, -2}) add_format_rows(two, "64 below 1000", code);
  for (const int code : {2, 6}) add_format_rows(six, "64 below 500000", code);
  add_format_rows(extreme, "64 of 1e-300 to 1e300", -6);
}

}  // namespace zeph_bench
