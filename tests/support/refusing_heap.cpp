#include "support/refusing_heap.h"

#include <cerrno>
#include <cstdlib>
#include <new>

using zeph_test::calloc_gate;
using zeph_test::new_gate;

zeph_test::HeapGate zeph_test::calloc_gate, zeph_test::new_gate;

#ifndef _WIN32
// This program's calloc takes the place of the runtime's for the whole process. The sanitizers'
// heap has to be reached under its own name, so that free() finds its blocks again.
extern "C" {
__attribute__((weak)) void* __interceptor_calloc(std::size_t count, std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);

void* calloc(std::size_t count, std::size_t size) {
  if (calloc_gate.refuses(count * size)) {
    errno = ENOMEM;
    return nullptr;
  }
  return __interceptor_calloc ? __interceptor_calloc(count, size) : __libc_calloc(count, size);
}
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return new_gate.refuses(size) ? nullptr : std::malloc(size > 0 ? size : 1);
}

void* operator new(std::size_t size) {
  void* const block = operator new(size, std::nothrow);
  if (!block) throw std::bad_alloc();
  return block;
}

void operator delete(void* block) noexcept {
  std::free(block);
}

void operator delete(void* block, std::size_t) noexcept {
  std::free(block);
}
#endif
