// Integer texts against the runtime's services and the C++ standard library's conversions.
#include <cctype>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "number_batch.h"
#include "zeph.h"

#if ZEPH_BENCH_HAS_ABSEIL
#include <absl/strings/numbers.h>
#endif

namespace zeph_bench {
namespace {

using String = std::string;

long strtol_of_slice(const ByteText& text) {
  char slice[256];
  const auto size = static_cast<std::size_t>(text.size);
  std::memcpy(slice, text.at, size);
  slice[size] = '\0';
  return std::strtol(slice, nullptr, 10);
}

long from_chars_of_slice(const ByteText& text) {
  return from_chars<int>(text.at, text.at + text.size);
}

// One request for each text, as large as the work buffer of its slice.
auto requests_of(const Batch& batch) {
  return [&batch] {
    for (const ByteText& text : batch.bytes) {
      heap_requests(1, static_cast<std::size_t>(text.size) + 1);
    }
    return 0;
  };
}

// Is all of it an integer text? 0, 1, or 2 for one with a '-'.
[[gnu::noinline]] int check_by_loop(const char* text) {
  const int code = *text == '-' ? 2 : 1;
  if (code == 2) ++text;
  const bool hexadecimal = text[0] == '0' && (text[1] | 32) == 'x';
  if (hexadecimal) text += 2;
  for (; *text != '\0'; ++text) {
    const auto byte = static_cast<unsigned char>(*text);
    if (hexadecimal ? !std::isxdigit(byte) : !std::isdigit(byte)) return 0;
  }
  return code;
}

[[gnu::noinline]] int check_by_strspn(const char* text) {
  const int code = *text == '-' ? 2 : 1;
  if (code == 2) ++text;
  const bool hexadecimal = text[0] == '0' && (text[1] | 32) == 'x';
  if (hexadecimal) text += 2;
  text += std::strspn(text, hexadecimal ? "0123456789abcdefABCDEF" : "0123456789");
  return *text == '\0' ? code : 0;
}

// The value if all of the text is a number within the bounds, else -1.
[[gnu::noinline]] long bounded_by_strtol(const char* text, long minimum, long maximum) {
  char* end = nullptr;
  const long value = std::strtol(text, &end, 10);
  return end != text && *end == '\0' && value >= minimum && value <= maximum ? value : -1;
}

[[gnu::noinline]] long bounded_by_from_chars(const char* begin, const char* end, int minimum,
                                             int maximum) {
  int value = 0;
  const auto [stop, error] = std::from_chars(begin, end, value);
  const bool whole = error == std::errc() && stop == end;
  return whole && value >= minimum && value <= maximum ? value : -1L;
}

// What `read(text, &value)` stores.
template <typename Text, typename Read>
auto stored(const std::vector<Text>& texts, Read read) {
  return sum_of(texts, [read](const Text& text) {
    int value = 0;
    read(text, &value);
    return static_cast<long>(value);
  });
}

const char* const slice_reason =
    "a zero byte ends the slice, too, hexadecimal numbers are read, and errno is kept";

void add_byte_rows(const Batch& batch, const std::string& input) {
  const auto& texts = batch.bytes;
  row("number", "Zeph_To_Int", input, batch.size)
      .zeph(stored(texts, [](ByteText t, int* value) { Orbane::Zeph_To_Int(t.at, value); }))
      .peer("strtol", sum_of(texts, [](ByteText t) { return std::strtol(t.at, nullptr, 10); }))
      .peer("strlen, std::from_chars",
            sum_of(texts, [](ByteText t) { return 0L + from_byte_text<int>(t); }));
  row("number", "Zeph_To_Int slice", input, batch.size)
      .zeph(stored(texts,
                   [](ByteText t, int* value) { Orbane::Zeph_To_Int(t.at, value, 0, t.size); }))
      .peer("memcpy, strtol", sum_of(texts, strtol_of_slice))
      .peer("std::from_chars", sum_of(texts, from_chars_of_slice))
      .reason(slice_reason)
      .requests(requests_of(batch));
  row("number", "Zeph_Ext_Int_From_Str", input, batch.size)
      .reason("white space and a '+' in front are taken, too, which std::from_chars refuses")
      .zeph(sum_of(texts,
                   [](ByteText t) { return 0L + Orbane::Zeph_Ext_Int_From_Str(t.at, 0, t.size); }))
      .peer("memcpy, strtol", sum_of(texts, strtol_of_slice))
      .peer("std::from_chars", sum_of(texts, from_chars_of_slice));
}

void add_string_rows(const Batch& batch, const std::string& input) {
  const auto& texts = batch.strings;
  auto& strings = row("number", "Zeph_To_Int String", input, batch.size);
  strings.zeph(stored(texts, [](const String& t, int* value) { Orbane::Zeph_To_Int(t, value); }))
      .peer("std::stoi", sum_of(texts, [](const String& t) { return 0L + std::stoi(t); }))
      .peer("std::from_chars",
            sum_of(texts, [](const String& t) { return 0L + from_string<int>(t); }))
      .reason("std::from_chars is compiled into the loop and stops at no zero byte");
#if ZEPH_BENCH_HAS_ABSEIL
  strings.peer("absl::SimpleAtoi", sum_of(texts, [](const String& t) {
                 int value = 0;
                 return absl::SimpleAtoi(t, &value) ? 0L + value : -1L;
               }));
#else
  strings.missing_peer("abseil");
#endif
}

// The value, or -1 where the text or the value is refused.
template <typename Text, typename Read>
auto passed(const std::vector<Text>& texts, Read read) {
  return sum_of(texts, [read](const Text& text) {
    int value = 0;
    return read(text, &value) ? static_cast<long>(value) : -1L;
  });
}

constexpr int low = -2147483647, high = 2147483647;

// All forms of the check and with bounds; some of the texts may have a foreign byte.
void add_strict_byte_rows(const Batch& batch, const std::string& input) {
  const auto& texts = batch.bytes;
  row("number", "Zeph_Int_Check", input, batch.size)
      .zeph(sum_of(texts, [](ByteText t) { return Orbane::Zeph_Int_Check(t.at); }))
      .peer("isdigit loop", sum_of(texts, [](ByteText t) { return check_by_loop(t.at); }))
      .peer("strspn", sum_of(texts, [](ByteText t) { return check_by_strspn(t.at); }));
  const auto from_chars_of = [](ByteText t) {
    return bounded_by_from_chars(t.at, t.at + std::strlen(t.at), low, high);
  };
  row("number", "Zeph_To_Int, bounds", input, batch.size)
      .zeph(
          passed(texts, [](ByteText t, int* v) { return Orbane::Zeph_To_Int(t.at, low, high, v); }))
      .peer("strtol, tests",
            sum_of(texts, [](ByteText t) { return bounded_by_strtol(t.at, low, high); }))
      .peer("strlen, std::from_chars, tests", sum_of(texts, from_chars_of));
  row("number", "Zeph_To_Int, bounds, slice", input, batch.size)
      .zeph(passed(
          texts,
          [](ByteText t, int* v) { return Orbane::Zeph_To_Int(t.at, low, high, v, 0, t.size); }))
      .peer(
          "std::from_chars, tests",
          sum_of(texts,
                 [](ByteText t) { return bounded_by_from_chars(t.at, t.at + t.size, low, high); }))
      .reason(slice_reason)
      .requests(requests_of(batch));
}

void add_strict_string_rows(const Batch& batch, const std::string& input) {
  const auto& texts = batch.strings;
  const auto from_chars_of = [](const String& t) {
    return bounded_by_from_chars(t.data(), t.data() + t.size(), low, high);
  };
  row("number", "Zeph_Int_Check String", input, batch.size)
      .zeph(sum_of(texts, [](const String& t) { return Orbane::Zeph_Int_Check(t); }))
      .peer("isdigit loop", sum_of(texts, [](const String& t) { return check_by_loop(t.c_str()); }))
      .peer("strspn", sum_of(texts, [](const String& t) { return check_by_strspn(t.c_str()); }));
  row("number", "Zeph_To_Int String, bounds", input, batch.size)
      .zeph(passed(texts,
                   [](const String& t, int* v) { return Orbane::Zeph_To_Int(t, low, high, v); }))
      .peer("std::from_chars, tests", sum_of(texts, from_chars_of));
  const auto size_of = [](const String& t) { return static_cast<int>(t.size()); };
  row("number", "Zeph_To_Int String, slice", input, batch.size)
      .zeph(passed(texts, [size_of](const String& t,
                                    int* v) { return Orbane::Zeph_To_Int(t, v, 0, size_of(t)); }))
      .peer("std::from_chars, tests", sum_of(texts, from_chars_of))
      .reason(slice_reason)
      .requests(requests_of(batch));
  row("number", "Zeph_To_Int String, bounds, slice", input, batch.size)
      .zeph(passed(texts,
                   [size_of](const String& t, int* v) {
                     return Orbane::Zeph_To_Int(t, low, high, v, 0, size_of(t));
                   }))
      .peer("std::from_chars, tests", sum_of(texts, from_chars_of))
      .reason(slice_reason)
      .requests(requests_of(batch));
}

void add_lenient_row(const Batch& batch, const std::string& input) {
  const auto& texts = batch.bytes;
  char* const buffer = keep(Places()).room(256);
  row("number", "Zeph_Ext_Int_From_Str, buffer", input, batch.size)
      .zeph(sum_of(texts,
                   [buffer](ByteText t) {
                     return 0L + Orbane::Zeph_Ext_Int_From_Str(t.at, 0, t.size, buffer);
                   }))
      .peer("memcpy, strtol", sum_of(texts, [buffer](ByteText t) {
              const auto size = static_cast<std::size_t>(t.size);
              std::memcpy(buffer, t.at, size);
              buffer[size] = '\0';
              return std::strtol(buffer, nullptr, 10);
            }));
}

void add_char_row(const Batch& batch, const std::string& input) {
  const auto& texts = batch.bytes;
  row("number", "Zeph_Char_Num_Check", input, batch.size)
      .zeph(sum_of(texts,
                   [](ByteText t) {
                     char value = 0;
                     return Orbane::Zeph_Char_Num_Check(t.at, -100, 100, &value)
                                ? static_cast<long>(static_cast<signed char>(value))
                                : -1L;
                   }))
      .peer("strtol, tests",
            sum_of(texts, [](ByteText t) { return bounded_by_strtol(t.at, -100, 100); }))
      .peer("strlen, std::from_chars, tests", sum_of(texts, [](ByteText t) {
              return bounded_by_from_chars(t.at, t.at + std::strlen(t.at), -100, 100);
            }));
}

void add_hex_slice_row(const Batch& batch, const std::string& input) {
  const auto& texts = batch.bytes;
  row("number", "Zeph_HexStr_to_DecInt slice", input, batch.size)
      .zeph(sum_of(texts,
                   [](ByteText t) { return 0L + Orbane::Zeph_HexStr_to_DecInt(t.at, 0, t.size); }))
      .peer("std::from_chars", sum_of(texts, [](ByteText t) {
              int value = 0;
              std::from_chars(t.at, t.at + t.size, value, 16);
              return static_cast<long>(value);
            }));
}

void add_hex_rows(const Batch& batch, const std::string& input) {
  const auto& texts = batch.bytes;
  row("number", "Zeph_HexStr_to_DecInt", input, batch.size)
      .zeph(sum_of(texts, [](ByteText t) { return 0L + Orbane::Zeph_HexStr_to_DecInt(t.at); }))
      .peer("strtol", sum_of(texts, [](ByteText t) { return std::strtol(t.at, nullptr, 16); }))
      .peer("strlen, std::from_chars", sum_of(texts, [](ByteText t) {
              int value = 0;
              std::from_chars(t.at, t.at + std::strlen(t.at), value, 16);
              return static_cast<long>(value);
            }));
}

}  // namespace

void register_integer_rows() {
  using Random = std::mt19937_64;
  const auto below_1000 = [](Random& r) { return static_cast<int>(r() % 1000); };
  const auto any = [](Random& r) { return static_cast<int>(r()); };
  const auto any_positive = [](Random& r) { return static_cast<unsigned>(r() >> 33); };
  const auto of_a_byte = [](Random& r) { return static_cast<int>(r() % 256) - 128; };
  const Batch& small = keep(make_batch("%d", below_1000));
  const Batch& wide = keep(make_batch("%d", any));
  for (const auto& [batch, input] :
       {std::pair(&small, "64 of 1-3 digits"), std::pair(&wide, "64 of 9-10 digits")}) {
    add_byte_rows(*batch, input);
    add_string_rows(*batch, input);
    add_strict_byte_rows(*batch, input);
    add_strict_string_rows(*batch, input);
    add_lenient_row(*batch, input);
  }
  const Batch& foreign = keep(make_batch("%d mTorr", any));
  add_strict_byte_rows(foreign, "64 with a foreign byte");
  add_strict_string_rows(foreign, "64 with a foreign byte");
  add_char_row(keep(make_batch("%d", of_a_byte)), "64 of 1-3 digits");
  const Batch& hex = keep(make_batch("%X", any_positive));
  add_hex_rows(hex, "64 of 8 digits");
  add_hex_slice_row(hex, "64 of 8 digits");
}

}  // namespace zeph_bench
