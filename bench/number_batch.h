// Batches of number texts. An operation goes through all of a batch, so that no branch can be
// learnt by heart; its answer is the sum of all values.
#ifndef ZEPH_BENCH_NUMBER_BATCH_H
#define ZEPH_BENCH_NUMBER_BATCH_H

#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "bench.h"

namespace zeph_bench {

constexpr std::size_t batch_size = 64;

struct ByteText {
  const char* at;
  int size;  // for the slices; who takes a byte text finds its end
};

// The same texts as byte texts, each on a cache line of its own, and as Strings.
struct Batch {
  Places places;
  std::vector<ByteText> bytes;
  std::vector<std::string> strings;
  std::vector<double> values;
  std::size_t size = 0;  // of all texts
};

// Each number is printed with `format` and read again from its text.
template <typename Make>
Batch make_batch(const char* format, Make make) {
  constexpr std::size_t line = 64;
  std::mt19937_64 random(1);
  Batch batch;
  char* const room = batch.places.room(line * batch_size);
  for (std::size_t i = 0; i < batch_size; ++i) {
    char* const text = room + line * i;
    const int size = std::snprintf(text, line, format, make(random));
    batch.bytes.push_back({text, size});
    batch.strings.emplace_back(text);
    batch.values.push_back(std::strtod(text, nullptr));
    batch.size += static_cast<std::size_t>(size);
  }
  return batch;
}

// The sum of what read(text) gives.
template <typename Text, typename Read>
auto sum_of(const std::vector<Text>& texts, Read read) {
  return [&texts, read] {
    decltype(read(texts[0])) sum = 0;
    for (const Text& text : texts) sum += read(text);
    return sum;
  };
}

// The conversion of the C++ standard library, which wants the end.
template <typename Value>
Value from_chars(const char* begin, const char* end) {
  Value value = 0;
  std::from_chars(begin, end, value);
  return value;
}
template <typename Value>
Value from_byte_text(const ByteText& text) {
  return from_chars<Value>(text.at, text.at + std::strlen(text.at));
}
template <typename Value>
Value from_string(const std::string& text) {
  return from_chars<Value>(text.data(), text.data() + text.size());
}

}  // namespace zeph_bench

#endif  // ZEPH_BENCH_NUMBER_BATCH_H
