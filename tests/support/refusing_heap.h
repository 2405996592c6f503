// A heap that refuses requests on demand, seen by the library and by the standard library alike,
// with and without sanitizers. Not on Windows, where a program cannot stand in for the runtime's
// heap: `REQUIRE_REFUSING_HEAP` skips a test there.
//
//     RefusingHeap heap;
//     heap.refuse_calloc(2);     // the second calloc from here on gives NULL, others do not
//     heap.refuse_calloc(1, 3);  // the first three
//     heap.refuse_new(1);        // the first operator new throws std::bad_alloc
//     heap.callocs();            // requests since the last refuse_calloc or the start
//
// The destructor ends all refusals.
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
  void close(long from, long many) {
    count = seen = 0;
    first = from;
    count = many;
  }
};

extern HeapGate calloc_gate, new_gate;

class RefusingHeap {
 public:
  RefusingHeap() {
    calloc_gate.close(0, 0);
    new_gate.close(0, 0);
  }
  ~RefusingHeap() {
    refuse_no_more();
  }
  RefusingHeap(const RefusingHeap&) = delete;
  RefusingHeap& operator=(const RefusingHeap&) = delete;

  void refuse_calloc(long first, long count = 1) {
    calloc_gate.close(first, count);
  }
  void refuse_new(long first, long count = 1) {
    new_gate.close(first, count);
  }
  static void refuse_no_more() {  // the counts stay
    calloc_gate.count = new_gate.count = 0;
  }
  long callocs() const {
    return calloc_gate.seen;
  }
  std::size_t last_calloc() const {  // the bytes of the newest request
    return calloc_gate.last_size;
  }
  long news() const {
    return new_gate.seen;
  }
};

// The parts as one text, made with a heap that refuses no more.
template <typename... Parts>
std::string shown(const Parts&... parts) {
  RefusingHeap::refuse_no_more();
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
