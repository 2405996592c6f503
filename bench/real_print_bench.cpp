// Real numbers as texts against the runtime's and the C++ standard library's printing and {fmt}.
// The answer is the last text of a batch.
#include <charconv>
#include <cmath>
#include <cstdio>
#include <random>
#include <string>

#include "number_batch.h"
#include "zeph.h"

#if ZEPH_BENCH_HAS_FMT
#include <fmt/format.h>
#endif

namespace zeph_bench {
namespace {

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

void register_real_print_rows() {
  using Random = std::mt19937_64;
  const auto uniform = [](Random& random) { return std::generate_canonical<double, 53>(random); };
  const Batch& two = keep(make_batch("%.2f", [=](Random& r) { return uniform(r) * 1000; }));
  const Batch& six = keep(make_batch("%.6f", [=](Random& r) { return uniform(r) * 1e6 - 5e5; }));
  const Batch& extreme = keep(make_batch("%.17g", [=](Random& r) {
    return uniform(r) * std::pow(10, static_cast<int>(r() % 600) - 300);
  }));
  for (const int code : {0, 2, 6, 10, -2}) add_format_rows(two, "64 below 1000", code);
  for (const int code : {2, 6}) add_format_rows(six, "64 below 500000", code);
  add_format_rows(extreme, "64 of 1e-300 to 1e300", -6);
}

}  // namespace zeph_bench
