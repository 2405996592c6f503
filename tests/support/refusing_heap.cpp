#include "support/refusing_heap.h"

#include <atomic>
#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

// Requests are counted from 1; those from `first` to `first + count - 1` are refused. The counters
// order nothing between threads, so that a checker of races sees the same as without them.
struct Gate {
  std::atomic<long> seen{0};
  std::atomic<long> first{0};
  std::atomic<long> count{0};

  bool refuses() {
    const long number = seen.fetch_add(1, std::memory_order_relaxed) + 1;
    const long from = first.load(std::memory_order_relaxed);
    return number >= from && number < from + count.load(std::memory_order_relaxed);
  }
  void close(long from, long many) {
    count = 0;
    seen = 0;
    first = from;
    count = many;
  }
};

Gate calloc_gate;
std::atomic<std::size_t> last_size{0};
Gate new_gate;

}  // namespace

#ifndef _WIN32
// This program's calloc takes the place of the runtime's for the whole process. The sanitizers'
// heap has to be reached under its own name, so that free() finds its blocks again.
extern "C" {
__attribute__((weak)) void* __interceptor_calloc(std::size_t count, std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);

void* calloc(std::size_t count, std::size_t size) {
  last_size.store(count * size, std::memory_order_relaxed);
  if (calloc_gate.refuses()) {
    errno = ENOMEM;
    return nullptr;
  }
  return __interceptor_calloc ? __interceptor_calloc(count, size) : __libc_calloc(count, size);
}
}

void* operator new(std::size_t size) {
  void* const block = new_gate.refuses() ? nullptr : std::malloc(size > 0 ? size : 1);
  if (!block) throw std::bad_alloc();
  return block;
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return new_gate.refuses() ? nullptr : std::malloc(size > 0 ? size : 1);
}

void operator delete(void* block) noexcept {
  std::free(block);
}

void operator delete(void* block, std::size_t) noexcept {
  std::free(block);
}
#endif

namespace zeph_test {

RefusingHeap::RefusingHeap() {
  calloc_gate.close(0, 0);
  new_gate.close(0, 0);
}

RefusingHeap::~RefusingHeap() {
  calloc_gate.close(0, 0);
  new_gate.close(0, 0);
}

void RefusingHeap::refuse_calloc(long first, long count) {
  calloc_gate.close(first, count);
}

void RefusingHeap::refuse_new(long first, long count) {
  new_gate.close(first, count);
}

void RefusingHeap::refuse_no_more() {
  calloc_gate.count = 0;
  new_gate.count = 0;
}

long RefusingHeap::callocs() const {
  return calloc_gate.seen;
}

std::size_t RefusingHeap::last_calloc() const {
  return last_size;
}

long RefusingHeap::news() const {
  return new_gate.seen;
}

}  // namespace zeph_test
