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

#include <cstddef>

namespace zeph_test {

class RefusingHeap {
 public:
  RefusingHeap();
  ~RefusingHeap();
  RefusingHeap(const RefusingHeap&) = delete;
  RefusingHeap& operator=(const RefusingHeap&) = delete;

  void refuse_calloc(long first, long count = 1);
  void refuse_new(long first, long count = 1);
  static void refuse_no_more();  // the counts stay
  long callocs() const;
  std::size_t last_calloc() const;  // the bytes of the newest request
  long news() const;
};

#ifdef _WIN32
#define REQUIRE_REFUSING_HEAP GTEST_SKIP() << "no refusing heap on this platform"
#else
#define REQUIRE_REFUSING_HEAP static_cast<void>(0)
#endif

}  // namespace zeph_test

#endif  // ZEPH_TESTS_SUPPORT_REFUSING_HEAP_H
