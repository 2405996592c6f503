// Operations that change a text in place: each call works on a fresh copy, and the copy is part of
// every figure.
#ifndef ZEPH_BENCH_IN_PLACE_H
#define ZEPH_BENCH_IN_PLACE_H

#include <cstring>
#include <string>

#include "bench.h"

namespace zeph_bench {

struct ByteCopy {
  const char* source;
  char* room;
  std::size_t size;  // with the terminator

  char* fresh() const {
    std::memcpy(room, source, size);
    return room;
  }
};

struct StringCopy {
  std::string source, room;

  std::string& fresh() {
    return room.assign(source);
  }
};

// With room for a longer text, where the change makes one.
inline ByteCopy byte_copy(const std::string& text, std::size_t room = 0) {
  Places& places = keep(Places());
  const char* const source = places.text(text);
  return {source, places.text(text, room), text.size() + 1};
}

inline StringCopy& string_copy(const std::string& text) {
  return keep(StringCopy{text, text});
}

// `change` gets the copy as a char* or a std::string&.
template <typename Change>
auto on_a_copy(ByteCopy copy, Change change) {
  return [copy, change] { return change(copy.fresh()), 0; };
}
template <typename Change>
auto on_a_copy(StringCopy& copy, Change change) {
  return [&copy, change] { return change(copy.fresh()), 0; };
}

// What an operation has made of the copy.
inline auto changed(ByteCopy copy) {
  return [copy] { return std::string(copy.room); };
}
inline auto changed(StringCopy& copy) {
  return [&copy] { return copy.room; };
}

}  // namespace zeph_bench

#endif  // ZEPH_BENCH_IN_PLACE_H
