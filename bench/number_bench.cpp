// Number texts against the runtime's services, the C++ standard library's conversions and
// fast_float. An operation goes through a batch of texts, so that no branch can be learnt by heart;
// its answer is the sum of all values, or the last text.
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "bench.h"
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

constexpr std::size_t batch_size = 64;

struct Batch {
  std::vector<std::string> texts;
  std::vector<double> values;
};

std::size_t total_size(const Batch& batch) {
  std::size_t size = 0;
  for (const std::string& text : batch.texts) size += text.size();
  return size;
}

// A batch of numbers, each printed with `format` and read again from its text.
template <typename Make>
Batch make_batch(const char* format, Make make) {
  std::mt19937_64 random(1);
  Batch batch;
  for (std::size_t i = 0; i < batch_size; ++i) {
    char text[400];
    std::snprintf(text, sizeof text, format, make(random));
    batch.texts.emplace_back(text);
    batch.values.push_back(std::strtod(text, nullptr));
  }
  return batch;
}

// The sum of what read(text) gives.
template <typename Read>
auto sum_of(const Batch& batch, Read read) {
  return [&batch, read] {
    decltype(read(batch.texts[0])) sum = 0;
    for (const std::string& text : batch.texts) sum += read(text);
    return sum;
  };
}

const char* end_of(const std::string& text) {
  return text.data() + text.size();
}

// A number from a byte text, whose end has to be found, and from a String.
template <typename Value>
Value from_chars(const char* begin, const char* end) {
  Value value = 0;
  std::from_chars(begin, end, value);
  return value;
}
template <typename Value>
Value from_byte_text(const std::string& text) {
  return from_chars<Value>(text.c_str(), text.c_str() + std::strlen(text.c_str()));
}
template <typename Value>
Value from_string(const std::string& text) {
  return from_chars<Value>(text.data(), end_of(text));
}

void add_integer_rows(const Batch& batch, const std::string& input) {
  row("number", "Zeph_To_Int", input, total_size(batch))
      .zeph(sum_of(batch,
                   [](const std::string& text) {
                     int value;
                     Orbane::Zeph_To_Int(text.c_str(), &value);
                     return static_cast<long>(value);
                   }))
      .peer("strtol",
            sum_of(batch,
                   [](const std::string& text) { return std::strtol(text.c_str(), nullptr, 10); }))
      .peer("strlen, std::from_chars", sum_of(batch, [](const std::string& text) {
              return static_cast<long>(from_byte_text<int>(text));
            }));
  auto& strings = row("number", "Zeph_To_Int String", input, total_size(batch));
  strings
      .zeph(sum_of(batch,
                   [](const std::string& text) {
                     int value;
                     Orbane::Zeph_To_Int(text, &value);
                     return static_cast<long>(value);
                   }))
      .peer("std::stoi",
            sum_of(batch, [](const std::string& text) { return 0L + std::stoi(text); }))
      .peer("std::from_chars", sum_of(batch,
                                      [](const std::string& text) {
                                        return static_cast<long>(from_string<int>(text));
                                      }))
      .reason("std::from_chars is compiled into the loop and stops at no zero byte");
#if ZEPH_BENCH_HAS_ABSEIL
  strings.peer("absl::SimpleAtoi", sum_of(batch, [](const std::string& text) {
                 int value = 0;
                 return absl::SimpleAtoi(text, &value) ? static_cast<long>(value) : -1L;
               }));
#else
  strings.missing_peer("abseil");
#endif
  row("number", "Zeph_To_Int slice", input, total_size(batch))
      .zeph(sum_of(batch,
                   [](const std::string& text) {
                     int value;
                     Orbane::Zeph_To_Int(text.c_str(), &value, 0, static_cast<int>(text.size()));
                     return static_cast<long>(value);
                   }))
      .peer("substr, stol",
            sum_of(batch,
                   [](const std::string& text) { return std::stol(text.substr(0, text.size())); }))
      .requests([&batch] {
        for (const std::string& text : batch.texts) heap_requests(1, text.size() + 1);
        return 0;
      });
  row("number", "Zeph_Ext_Int_From_Str", input, total_size(batch))
      .zeph(sum_of(batch,
                   [](const std::string& text) {
                     const auto size = static_cast<int>(text.size());
                     return static_cast<long>(Orbane::Zeph_Ext_Int_From_Str(text.c_str(), 0, size));
                   }))
      .peer("memcpy, strtol", sum_of(batch, [](const std::string& text) {
              char slice[256];
              std::memcpy(slice, text.c_str(), text.size());
              slice[text.size()] = '\0';
              return std::strtol(slice, nullptr, 10);
            }));
}

void add_hex_rows(const Batch& batch, const std::string& input) {
  row("number", "Zeph_HexStr_to_DecInt", input, total_size(batch))
      .zeph(sum_of(batch,
                   [](const std::string& text) {
                     return static_cast<long>(Orbane::Zeph_HexStr_to_DecInt(text.c_str()));
                   }))
      .peer("strtol", sum_of(batch, [](const std::string& text) {
              return std::strtol(text.c_str(), nullptr, 16);
            }));
}

void add_real_rows(const Batch& batch, const std::string& input) {
  const char* const reason = "it asks which decimal point the locale has; the peers take '.'";
  Row& bytes = row("number", "Zeph_To_Double", input, total_size(batch));
  bytes.reason(reason)
      .zeph(sum_of(batch,
                   [](const std::string& text) {
                     double value = 0;
                     Orbane::Zeph_To_Double(text.c_str(), &value);
                     return value;
                   }))
      .peer(
          "strtod",
          sum_of(batch, [](const std::string& text) { return std::strtod(text.c_str(), nullptr); }))
      .peer("strlen, std::from_chars", sum_of(batch, from_byte_text<double>));
  Row& strings = row("number", "Zeph_To_Double String", input, total_size(batch));
  strings.reason(reason)
      .zeph(sum_of(batch,
                   [](const std::string& text) {
                     double value = 0;
                     Orbane::Zeph_To_Double(text, &value);
                     return value;
                   }))
      .peer("std::stod", sum_of(batch, [](const std::string& text) { return std::stod(text); }))
      .peer("std::from_chars", sum_of(batch, from_string<double>));
#if ZEPH_BENCH_HAS_FAST_FLOAT
  const auto fast = [](const char* begin, const char* end) {
    double value = 0;
    fast_float::from_chars(begin, end, value);
    return value;
  };
  bytes.peer("strlen, fast_float", sum_of(batch, [fast](const std::string& text) {
               return fast(text.c_str(), text.c_str() + std::strlen(text.c_str()));
             }));
  strings.peer("fast_float", sum_of(batch, [fast](const std::string& text) {
                 return fast(text.data(), end_of(text));
               }));
#else
  bytes.missing_peer("fast_float");
#endif
#if ZEPH_BENCH_HAS_ABSEIL
  strings.peer("absl::SimpleAtod", sum_of(batch, [](const std::string& text) {
                 double value = 0;
                 return absl::SimpleAtod(text, &value) ? value : -1;
               }));
#endif
}

struct Output {
  char text[400];
};

void add_format_rows(const Batch& batch, const std::string& input, int code) {
  Output& out = keep(Output{});
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
  auto& texts =
      row("number", "Zeph_Conv_Dbl_To_Str " + std::to_string(code), input, total_size(batch));
  texts
      .outputs([&out] {
        const std::string text = out.text;
        out.text[0] = '\0';
        return text;
      })
      .zeph(
          each([&out, code](double value) { Orbane::Zeph_Conv_Dbl_To_Str(value, code, out.text); }))
      .peer("snprintf", each([&out, format, decimals](double value) {
              std::snprintf(out.text, sizeof out.text, format, decimals, value);
            }))
      .peer("std::to_chars", each([&out, notation, decimals](double value) {
              char* const end = out.text + sizeof out.text;
              *std::to_chars(out.text, end, value, notation, decimals).ptr = '\0';
            }));
#if ZEPH_BENCH_HAS_FMT
  texts.peer("fmt::format_to", each([&out, fixed, decimals](double value) {
               *(fixed ? fmt::format_to(out.text, "{:.{}f}", value, decimals)
                       : fmt::format_to(out.text, "{:.{}e}", value, decimals)) = '\0';
             }));
#else
  texts.missing_peer("fmt");
#endif
}

}  // namespace

void register_number_rows() {
  using Random = std::mt19937_64;
  const auto uniform = [](Random& random) { return std::generate_canonical<double, 53>(random); };
  const Batch& small =
      keep(make_batch("%d", [](Random& r) { return static_cast<int>(r() % 1000); }));
  const Batch& wide = keep(make_batch("%d", [](Random& r) { return static_cast<int>(r()); }));
  const Batch& hex =
      keep(make_batch("%X", [](Random& r) { return static_cast<unsigned>(r() >> 33); }));
  const Batch& two = keep(make_batch("%.2f", [=](Random& r) { return uniform(r) * 1000; }));
  const Batch& six = keep(make_batch("%.6f", [=](Random& r) { return uniform(r) * 1e6 - 5e5; }));
  const Batch& exponent = keep(make_batch("%.3e", [=](Random& r) {
    return uniform(r) * std::pow(10, static_cast<int>(r() % 20) - 10);
  }));
  const Batch& full = keep(make_batch("%.17g", uniform));
  const Batch& extreme = keep(make_batch("%.17g", [=](Random& r) {
    return uniform(r) * std::pow(10, static_cast<int>(r() % 600) - 300);
  }));
  add_integer_rows(small, "64 of 1-3 digits");
  add_integer_rows(wide, "64 of 9-10 digits");
  add_hex_rows(hex, "64 of 8 digits");
  add_real_rows(small, "64 of 1-3 digits");
  add_real_rows(two, "64 with 2 decimals");
  add_real_rows(six, "64 with 6 decimals");
  add_real_rows(exponent, "64 with exponent");
  add_real_rows(full, "64 of 17 digits");
  add_real_rows(extreme, "64 of 17 digits, 1e-300 to 1e300");
  for (const int code : {0, 2, 6, 10, -2}) add_format_rows(two, "64 below 1000", code);
  for (const int code : {2, 6}) add_format_rows(six, "64 below 500000", code);
  add_format_rows(extreme, "64 of 1e-300 to 1e300", -6);
}

}  // namespace zeph_bench
