// A heap that refuses requests on demand, seen by the library and by the standard library alike,
// with and without sanitizers. Not on Windows, where a program cannot stand in for the runtime's
// heap: `REQUIRE_REFUSING_HEAP` skips a test there.
//
//     calloc_gate.refuse(2);     // the second calloc from here on gives NULL, others do not
//     calloc_gate.refuse(1, 3);  // the first three
//     new_gate.refuse(1);        // the first operator new throws std::bad_alloc
//     refuse_no_more();
#ifndef ZEPH_TESTS_SUPPORT_REFUSING_HEAP_H
#define ZEPH_TESTS_SUPPORT_REFUSING_HEAP_H

#include <atomic>
#include <cstddef>
#include <string>

#include "zeph.h"

namespace zeph_test {

// Requests are counted from 1; those from `first` to `first + count - 1` are refused. The counters
// order nothing between threads, so that a checker of races sees the same as without them.
struct HeapGate {
  std::atomic<long> seen{0}, first{0}, count{0};
  std::atomic<std::size_t> last_size{0};

  bool refuses(std::size_t size) {
    last_size.store(size, std::memory_order_relaxed);
    const long number = seen.fetch_add(1, std::memory_order_relaxed) + 1;
    const long from = first.load(std::memory_order_relaxed);
    return number >= from && number < from + count.load(std::memory_order_relaxed);
  }
  void refuse(long from, long many = 1) {
    count = seen = 0;
    first = from;
    count = many;
  }
};

extern HeapGate calloc_gate, new_gate;

inline void refuse_no_more() {  // what was seen stays
  calloc_gate.count = new_gate.count = 0;
}

// The parts as one text, made with a heap that refuses no more.
template <typename... Parts>
std::string shown(const Parts&... parts) {
  refuse_no_more();
  std::string text;
  ((text += parts, text += '|'), ...);
  return text;
}

// An owned buffer that ends with its scope.
struct Owned {
  char* block = nullptr;
  explicit Owned(const char* held = nullptr) {
    if (held) Orbane::Zeph_Copy_Mem(&block, held);
  }
  ~Owned() {
    Orbane::Zeph_Release_Mem(&block);
  }
  std::string text() const {
    return block ? block : "NULL";
  }
};

#ifdef _WIN32
#define REQUIRE_REFUSING_HEAP GTEST_SKIP() << "no refusing heap on this platform"
#else
#define REQUIRE_REFUSING_HEAP static_cast<void>(0)
#endif

}  // namespace zeph_test

#endif  // ZEPH_TESTS_SUPPORT_REFUSING_HEAP_H
