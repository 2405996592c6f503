// Real-number texts against the runtime's services, the C++ standard library's conversions and
// fast_float.
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>
#include <system_error>
#include <type_traits>
#include <vector>

#include "number_batch.h"
#include "zeph.h"

#if ZEPH_BENCH_HAS_ABSEIL
#include <absl/strings/numbers.h>
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

// ---- checks, bounds and slices ----

// At least one digit, at most one '.' and one exponent letter, two of each sign, nothing else.
[[gnu::noinline]] int check_by_count(const char* text) {
  int digits = 0, points = 0, letters = 0, minuses = 0, pluses = 0;
  for (; *text != '\0'; ++text) {
    if (*text >= '0' && *text <= '9') {
      ++digits;
    } else if (*text == '.') {
      ++points;
    } else if (*text == 'e' || *text == 'E') {
      ++letters;
    } else if (*text == '-') {
      ++minuses;
    } else if (*text == '+') {
      ++pluses;
    } else {
      return 0;
    }
  }
  if (digits == 0 || points > 1 || letters > 1 || minuses > 2 || pluses > 2) return 0;
  return minuses == 1 ? 2 : 1;
}

constexpr double low = -1e300, high = 1e300, refused = -1;

// The value if all of the text is a number within the bounds.
[[gnu::noinline]] double bounded_by_strtod(const char* text) {
  char* end = nullptr;
  const double value = std::strtod(text, &end);
  return end != text && *end == '\0' && value >= low && value <= high ? value : refused;
}

[[gnu::noinline]] double bounded_by_from_chars(const char* begin, const char* end) {
  double value = 0;
  const auto [stop, error] = std::from_chars(begin, end, value);
  const bool whole = error == std::errc() && stop == end;
  return whole && value >= low && value <= high ? value : refused;
}

#if ZEPH_BENCH_HAS_FAST_FLOAT
[[gnu::noinline]] double bounded_by_fast_float(const char* begin, const char* end) {
  double value = 0;
  const auto result = fast_float::from_chars(begin, end, value);
  const bool whole = result.ec == std::errc() && result.ptr == end;
  return whole && value >= low && value <= high ? value : refused;
}
#endif

template <typename Text, typename Read>
auto passed(const std::vector<Text>& texts, Read read) {
  return sum_of(texts, [read](const Text& text) {
    double value = 0;
    return read(text, &value) ? value : refused;
  });
}

// Where a text begins and ends; a byte text tells its size to the slices alone.
const char* begin_of(const ByteText& text) {
  return text.at;
}
const char* begin_of(const String& text) {
  return text.data();
}
const char* end_of(const ByteText& text) {
  return text.at + text.size;
}
const char* end_of(const String& text) {
  return text.data() + text.size();
}

template <typename Text, typename Read>
Row& add_bounded_row(const char* operation, const Batch& batch, const std::vector<Text>& texts,
                     const std::string& input, bool slice, Read read) {
  const auto end_found = [slice](const Text& t) {
    const bool searched = std::is_same_v<Text, ByteText> && !slice;
    return searched ? begin_of(t) + std::strlen(begin_of(t)) : end_of(t);
  };
  auto& added = row("number", operation, input, batch.size);
  added
      .reason(slice ? "errno is kept over the request, and the locale asked for its decimal point"
                    : "it asks which decimal point the locale has; the peers take '.'")
      .zeph(passed(texts, read))
      .peer("std::from_chars, tests", sum_of(texts, [end_found](const Text& t) {
              return bounded_by_from_chars(begin_of(t), end_found(t));
            }));
#if ZEPH_BENCH_HAS_FAST_FLOAT
  added.peer("fast_float, tests", sum_of(texts, [end_found](const Text& t) {
               return bounded_by_fast_float(begin_of(t), end_found(t));
             }));
#else
  added.missing_peer("fast_float");
#endif
  if (!slice) {
    added.peer("strtod, tests",
               sum_of(texts, [](const Text& t) { return bounded_by_strtod(begin_of(t)); }));
    return added;
  }
  return added.requests([&batch] {
    for (const ByteText& text : batch.bytes) {
      heap_requests(1, static_cast<std::size_t>(text.size) + 1);
    }
    return 0;
  });
}

void add_strict_rows(const Batch& batch, const std::string& input) {
  using namespace Orbane;
  const auto& bytes = batch.bytes;
  const auto& strings = batch.strings;
  row("number", "Zeph_Double_Check", input, batch.size)
      .zeph(sum_of(bytes, [](ByteText t) { return Zeph_Double_Check(t.at); }))
      .peer("counting loop", sum_of(bytes, [](ByteText t) { return check_by_count(t.at); }));
  row("number", "Zeph_Double_Check String", input, batch.size)
      .zeph(sum_of(strings, [](const String& t) { return Zeph_Double_Check(t); }))
      .peer("counting loop",
            sum_of(strings, [](const String& t) { return check_by_count(t.c_str()); }));
  add_bounded_row("Zeph_To_Double, bounds", batch, bytes, input, false,
                  [](ByteText t, double* v) { return Zeph_To_Double(t.at, low, high, v); });
  add_bounded_row("Zeph_To_Double String, bounds", batch, strings, input, false,
                  [](const String& t, double* v) { return Zeph_To_Double(t, low, high, v); });
  add_bounded_row("Zeph_To_Double, slice", batch, bytes, input, true,
                  [](ByteText t, double* v) { return Zeph_To_Double(t.at, v, 0, t.size); });
  add_bounded_row("Zeph_To_Double String, slice", batch, strings, input, true,
                  [](const String& t, double* v) {
                    return Zeph_To_Double(t, v, 0, static_cast<int>(t.size()));
                  });
  add_bounded_row(
      "Zeph_To_Double, bounds, slice", batch, bytes, input, true,
      [](ByteText t, double* v) { return Zeph_To_Double(t.at, low, high, v, 0, t.size); });
  add_bounded_row("Zeph_To_Double String, bounds, slice", batch, strings, input, true,
                  [](const String& t, double* v) {
                    return Zeph_To_Double(t, low, high, v, 0, static_cast<int>(t.size()));
                  });
}

void add_lenient_rows(const Batch& batch, const std::string& input) {
  const auto& texts = batch.bytes;
  char* const buffer = keep(Places()).room(256);
  const auto copy_strtod = [buffer](ByteText t) {
    const auto size = static_cast<std::size_t>(t.size);
    std::memcpy(buffer, t.at, size);
    buffer[size] = '\0';
    return std::strtod(buffer, nullptr);
  };
  const auto from_chars_of = [](ByteText t) { return from_chars<double>(t.at, t.at + t.size); };
  row("number", "Zeph_Ext_Dbl_From_Str", input, batch.size)
      .zeph(
          sum_of(texts, [](ByteText t) { return Orbane::Zeph_Ext_Dbl_From_Str(t.at, 0, t.size); }))
      .peer("memcpy, strtod", sum_of(texts, copy_strtod))
      .peer("std::from_chars", sum_of(texts, from_chars_of));
  row("number", "Zeph_Ext_Dbl_From_Str, buffer", input, batch.size)
      .zeph(sum_of(
          texts,
          [buffer](ByteText t) { return Orbane::Zeph_Ext_Dbl_From_Str(t.at, 0, t.size, buffer); }))
      .peer("memcpy, strtod", sum_of(texts, copy_strtod));
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
  add_strict_rows(two, "64 with 2 decimals");
  add_strict_rows(keep(make_batch("%.17g", uniform)), "64 of 17 digits");
  add_strict_rows(keep(make_batch("%.2f mTorr", uniform)), "64 with a foreign byte");
  add_lenient_rows(two, "64 with 2 decimals");
}

}  // namespace zeph_bench
