// Integer texts against the runtime's services and the C++ standard library's conversions.
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>

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

// One request for each text, as large as the work buffer of its slice.
auto requests_of(const Batch& batch) {
  return [&batch] {
    for (const ByteText& text : batch.bytes) {
      heap_requests(1, static_cast<std::size_t>(text.size) + 1);
    }
    return 0;
  };
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
      .requests(requests_of(batch));
  row("number", "Zeph_Ext_Int_From_Str", input, batch.size)
      .zeph(sum_of(texts,
                   [](ByteText t) { return 0L + Orbane::Zeph_Ext_Int_From_Str(t.at, 0, t.size); }))
      .peer("memcpy, strtol", sum_of(texts, strtol_of_slice));
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

void add_hex_rows(const Batch& batch, const std::string& input) {
  const auto& texts = batch.bytes;
  row("number", "Zeph_HexStr_to_DecInt", input, batch.size)
      .zeph(sum_of(texts, [](ByteText t) { return 0L + Orbane::Zeph_HexStr_to_DecInt(t.at); }))
      .peer("strtol", sum_of(texts, [](ByteText t) { return std::strtol(t.at, nullptr, 16); }));
}

}  // namespace

void register_integer_rows() {
  using Random = std::mt19937_64;
  const auto below_1000 = [](Random& r) { return static_cast<int>(r() % 1000); };
  const auto any = [](Random& r) { return static_cast<int>(r()); };
  const auto any_positive = [](Random& r) { return static_cast<unsigned>(r() >> 33); };
  const Batch& small = keep(make_batch("%d", below_1000));
  const Batch& wide = keep(make_batch("%d", any));
  for (const auto& [batch, input] :
       {std::pair(&small, "64 of 1-3 digits"), std::pair(&wide, "64 of 9-10 digits")}) {
    add_byte_rows(*batch, input);
    add_string_rows(*batch, input);
  }
  add_hex_rows(keep(make_batch("%X", any_positive)), "64 of 8 digits");
}

}  // namespace zeph_bench
